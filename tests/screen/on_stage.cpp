#include "tests/screen/on_stage.h"

namespace korvantes::screen {

Played::Played(std::unique_ptr<scripts::Stage> made) : owned_(std::move(made)) {
  stage.desktop().regional(Regional::named("es-ES"));
  Desktop::makeCurrent(&stage.desktop());
  stage.onMessage = [this](const MessageBox& box) {
    messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
    return box.defaultAnswer();
  };
}

Played::~Played() {
  Desktop::makeCurrent(nullptr);
}

void Played::play(SampleForm& shown, const std::function<void()>& act) {
  stage.whileShown = [&](Form& top) {
    if (&top != &shown) return top.Unload();
    shown.log.clear();
    act();
    user.settle();
    shown.Unload();
  };
  shown.Show();
}

std::string Played::pressing(std::string_view key) {
  form.taken();
  press(key);
  return form.taken();
}

std::string Played::clicking(Control& control) {
  form.taken();
  user.click(control);
  return form.taken();
}

}  // namespace korvantes::screen
