#include "tests/support/screen_world.h"

namespace korvantes::support {

ScreenWorld::ScreenWorld()
    : connection(std::make_shared<FaultyConnection>(base_.connection())),
      component_(KORVAN::Create()) {
  desktop.clock = ado::Moment{{2026, 11, 24}, 12 * 3600};
  desktop.onMessage = [this](const screen::MessageBox& box) {
    messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
    screen::Answer answer = box.defaultAnswer();
    if (box.yesNo() && !answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    } else if (box.yesNo()) {
      answer = otherwise.value_or(answer);
    }
    return answer;
  };
  desktop.whileShown = [this](screen::Form&) { users_.back()(); };
  component_->MyBd(std::make_shared<plindor::BaseDatos>(connection));
}

void ScreenWorld::play(screen::Form& form, const std::function<void()>& user) {
  users_.push_back([&] {
    user();
    if (form.loaded()) form.Unload();
  });
  form.Show();
  users_.pop_back();
}

void ScreenWorld::chooseFromLists(std::size_t row) {
  desktop.onList = [row](const screen::ListDialog&) { return std::optional<std::size_t>(row); };
}

}  // namespace korvantes::support
