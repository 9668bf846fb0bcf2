#include "scripts/headless_desktop.h"

#include <stdexcept>

#include "runtime/ado/error.h"
#include "runtime/ado/stream.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/picture_file.h"

namespace korvantes::scripts {

/// Reports user actions to the model of the topmost form.
class HeadlessDesktop::ModelUser : public User {
 public:
  explicit ModelUser(HeadlessDesktop& desktop) : desktop_(desktop) {}

  void stroke(const screen::Key& key) override {
    desktop_.input();
    desktop_.run({key, true, true});
    settle();
  }
  void settle() override { desktop_.settle(); }

 protected:
  bool tell(const std::function<bool(screen::UserInput&)>& action) override {
    screen::UserInput input = desktop_.input();
    return action(input);
  }

 private:
  HeadlessDesktop& desktop_;
};

HeadlessDesktop::HeadlessDesktop() : user_(std::make_unique<ModelUser>(*this)) {}

HeadlessDesktop::~HeadlessDesktop() = default;

screen::UserInput HeadlessDesktop::input() const {
  if (forms_.empty()) throw std::logic_error("No hay ninguna pantalla abierta");
  return screen::UserInput(*forms_.back());
}

void HeadlessDesktop::settle() {
  // Keys that a closing form has not received go to the form below once it is on top.
  while (!queue_.empty() && !forms_.empty() && forms_.back()->loaded()) {
    const Queued next = queue_.front();
    queue_.pop_front();
    run(next);
  }
}

void HeadlessDesktop::run(const Queued& queued) {
  const std::size_t windowsBefore = windowChanges_;
  if (queued.press) input().keyDown(queued.key);
  const bool sameWindow = windowChanges_ == windowsBefore && !forms_.empty();
  if (queued.release && sameWindow) input().keyUp(queued.key);
}

void HeadlessDesktop::showModal(screen::Form& form) {
  // Whatever happens, the form ends up closed and off the stack.
  struct Shown {
    HeadlessDesktop& desktop;
    screen::Form& form;
    ~Shown() { desktop.close(form); }
  } const guard{*this, form};
  forms_.push_back(&form);
  ++windowChanges_;
  screen::UserInput(form).shown();
  while (form.loaded()) {
    // A copy: the callback may replace itself while it runs.
    if (const auto play = whileShown)
      play(form);
    else
      screen::UserInput(form).close();
  }
}

void HeadlessDesktop::close(screen::Form& form) {
  try {
    form.Unload();
  } catch (const std::exception&) {
    // Another exception may be propagating; the form is closed in any case.
  }
  std::erase(forms_, &form);
  ++windowChanges_;
  if (forms_.empty()) queue_.clear();
  if (onClosed) onClosed(form);
}

/// A dialog was closed. If it was by Enter, the release of that key reaches the form below.
template <class T>
T HeadlessDesktop::closedBy(const Reply<T>& reply) {
  ++windowChanges_;
  if (reply.byEnter && !forms_.empty()) queue_.push_back({screen::keyTyping(U'\r'), false, true});
  return reply.value;
}

screen::Answer HeadlessDesktop::messageBox(const screen::MessageBox& box) {
  return closedBy(answer(box));
}

std::optional<std::size_t> HeadlessDesktop::chooseFromList(const screen::ListDialog& dialog) {
  return closedBy(answer(dialog));
}

std::optional<std::string> HeadlessDesktop::chooseFile(const screen::FileDialog& dialog) {
  ++windowChanges_;
  return answer(dialog);
}

void HeadlessDesktop::sendKeys(std::string_view keys) {
  for (const char32_t character : ado::toCodePoints(keys))
    queue_.push_back({screen::keyTyping(character), true, true});
}

void HeadlessDesktop::processEvents() {
  settle();
}

screen::Picture HeadlessDesktop::loadPicture(const std::string& path) {
  ado::Stream file;
  file.LoadFromFile(path);
  const auto size = screen::pictureSize(file.Read());
  if (!size) throw ado::Error(0, "El fichero " + path + ' ' + screen::kNoPicture);
  if (size->tooLarge()) throw ado::Error(0, "El fichero " + path + ' ' + screen::kTooManyPixels);
  return {file.Take(), size->width, size->height};
}

void HeadlessDesktop::savePicture(const screen::Picture& picture, const std::string& path) {
  if (picture.empty()) throw ado::Error(0, "No hay ninguna imagen que guardar");
  ado::Stream file;
  file.Write(picture.file());
  file.SaveToFile(path);
}

ado::Moment HeadlessDesktop::now() const {
  return clock ? *clock : Desktop::now();
}

}  // namespace korvantes::scripts
