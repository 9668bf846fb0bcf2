#include "tests/support/screen_world.h"

#include <map>

namespace korvantes::support {

std::vector<std::string> tabStops(screen::Form& form) {
  std::vector<std::string> visited;
  for (screen::Control* stop = form.nextTabStop(nullptr);
       stop != nullptr && (visited.empty() || stop->identity() != visited.front());
       stop = form.nextTabStop(stop))
    visited.push_back(stop->identity());
  return visited;
}

std::vector<std::string> misplaced(const screen::Form& form) {
  std::map<int, std::string> owner;
  std::vector<std::string> found;
  for (const screen::Control* control : form.controls()) {
    const auto kind = control->kind();
    if (kind == screen::Control::Kind::Image || kind == screen::Control::Kind::CommonDialog)
      continue;
    const auto [taken, fresh] = owner.try_emplace(control->TabIndex(), control->identity());
    if (!fresh) found.push_back(control->identity() + " and " + taken->second);
    const screen::Frame* frame = control->container();
    if (control->Left() + control->Width() > (frame != nullptr ? frame->Width() : form.Width()) ||
        control->Top() + control->Height() > (frame != nullptr ? frame->Height() : form.Height()))
      found.push_back(control->identity());
  }
  return found;
}

ScreenWorld::ScreenWorld()
    : connection(std::make_shared<FaultyConnection>(base_.connection())),
      component_(KORVAN::Create()),
      former_(screen::Desktop::makeCurrent(&desktop)) {
  desktop.regional(screen::Regional::named("es-ES"));
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

ScreenWorld::~ScreenWorld() {
  screen::Desktop::makeCurrent(former_);
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
