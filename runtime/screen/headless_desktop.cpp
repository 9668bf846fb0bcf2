#include "runtime/screen/headless_desktop.h"

#include <stdexcept>

#include "runtime/ado/error.h"
#include "runtime/ado/stream.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/picture_file.h"

namespace korvantes::screen {

HeadlessDesktop::HeadlessDesktop() = default;

UserInput HeadlessDesktop::user() const {
  if (forms_.empty()) throw std::logic_error("No hay ninguna pantalla abierta");
  return UserInput(*forms_.back());
}

void HeadlessDesktop::stroke(const Key& key) {
  user();
  run({key, true, true});
  settle();
}

void HeadlessDesktop::type(std::string_view text) {
  for (const char32_t character : ado::toCodePoints(text)) stroke(keyTyping(character));
}

void HeadlessDesktop::settle() {
  // What a form that is going away has not taken is for the one below, once that is on top.
  while (!queue_.empty() && !forms_.empty() && forms_.back()->loaded()) {
    const Queued next = queue_.front();
    queue_.pop_front();
    run(next);
  }
}

void HeadlessDesktop::run(const Queued& queued) {
  const std::size_t windowsBefore = windowChanges_;
  if (queued.press) user().keyDown(queued.key);
  const bool sameWindow = windowChanges_ == windowsBefore && !forms_.empty();
  if (queued.release && sameWindow) user().keyUp(queued.key);
}

void HeadlessDesktop::showModal(Form& form) {
  // Whatever ends the loop, the form is closed and off the stack when this function is left.
  struct Shown {
    HeadlessDesktop& desktop;
    Form& form;
    ~Shown() { desktop.close(form); }
  } const guard{*this, form};
  forms_.push_back(&form);
  ++windowChanges_;
  UserInput(form).shown();
  while (form.loaded()) {
    // A copy: the user may set another one while it plays.
    if (const auto play = whileShown)
      play(form);
    else
      UserInput(form).close();
  }
}

void HeadlessDesktop::close(Form& form) {
  try {
    form.Unload();
  } catch (const std::exception&) {
    // Another failure is on its way already; the form is closed all the same.
  }
  std::erase(forms_, &form);
  ++windowChanges_;
  if (forms_.empty()) queue_.clear();
  if (onClosed) onClosed(form);
}

/// A dialog was closed; its Enter, if it was one, comes up over the form below.
template <class T>
T HeadlessDesktop::answered(const Reply<T>& reply) {
  ++windowChanges_;
  if (reply.byEnter && !forms_.empty()) queue_.push_back({keyTyping(U'\r'), false, true});
  return reply.value;
}

Answer HeadlessDesktop::messageBox(const MessageBox& box) {
  return answered(onMessage ? onMessage(box) : Reply<Answer>{box.defaultAnswer()});
}

std::optional<std::size_t> HeadlessDesktop::chooseFromList(const ListDialog& dialog) {
  if (!onList) return answered(Reply<std::optional<std::size_t>>{});
  const auto chosen = answered(onList(dialog));
  if (chosen && *chosen >= dialog.rows.size())
    throw std::out_of_range("La lista «" + dialog.title + "» no tiene la fila " +
                            std::to_string(*chosen + 1));
  return chosen;
}

std::optional<std::string> HeadlessDesktop::chooseFile(const FileDialog& dialog) {
  ++windowChanges_;
  return onFile ? onFile(dialog) : std::nullopt;
}

void HeadlessDesktop::sendKeys(std::string_view keys) {
  for (const char32_t character : ado::toCodePoints(keys))
    queue_.push_back({keyTyping(character), true, true});
}

void HeadlessDesktop::processEvents() {
  settle();
}

Picture HeadlessDesktop::loadPicture(const std::string& path) {
  ado::Stream file;
  file.LoadFromFile(path);
  const auto size = pictureSize(file.Read());
  if (!size) throw ado::Error(0, "El fichero " + path + ' ' + kNoPicture);
  if (size->tooLarge()) throw ado::Error(0, "El fichero " + path + ' ' + kTooManyPixels);
  return {file.Take(), size->width, size->height};
}

void HeadlessDesktop::savePicture(const Picture& picture, const std::string& path) {
  if (picture.empty()) throw ado::Error(0, "No hay ninguna imagen que guardar");
  ado::Stream file;
  file.Write(picture.file());
  file.SaveToFile(path);
}

ado::Moment HeadlessDesktop::now() const {
  return clock ? *clock : Desktop::now();
}

}  // namespace korvantes::screen
