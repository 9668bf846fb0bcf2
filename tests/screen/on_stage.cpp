#include "tests/screen/on_stage.h"

namespace korvantes::screen {

OnStage::OnStage() {
  stage.desktop().regional(Regional::named("es-ES"));
  Desktop::makeCurrent(&stage.desktop());
  stage.onMessage = [this](const MessageBox& box) {
    messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
    return box.defaultAnswer();
  };
}

void OnStage::play(const std::function<void()>& act) {
  stage.whileShown = [&](Form& top) {
    if (&top != &form) return top.Unload();
    form.log.clear();
    act();
    user.settle();
    form.Unload();
  };
  form.Show();
}

std::string OnStage::pressing(std::string_view key) {
  form.taken();
  press(key);
  return form.taken();
}

std::string OnStage::clicking(Control& control) {
  form.taken();
  user.click(control);
  return form.taken();
}

}  // namespace korvantes::screen
