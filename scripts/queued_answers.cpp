#include "scripts/queued_answers.h"

#include <utility>

namespace korvantes::scripts {
namespace {

template <class T>
std::optional<T> takeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  std::optional<T> first = std::move(queue.front());
  queue.pop_front();
  return first;
}

const char* nameOf(QueuedAnswers::Button button) {
  switch (button) {
    case QueuedAnswers::Button::Ok:
      return "Aceptar";
    case QueuedAnswers::Button::Yes:
      return "Sí";
    case QueuedAnswers::Button::No:
      return "No";
    case QueuedAnswers::Button::EnterKey:
      return "Enter";
  }
  return "";
}

}  // namespace

Reply<screen::Answer> QueuedAnswers::answer(const screen::MessageBox& box) {
  transcript_.happening("mensaje " + std::to_string(box.style), box.title + " | " + box.text);
  const screen::Answer byDefault = box.defaultAnswer();
  const std::optional<Button> button = takeFirst(buttons_);
  if (!button) return {byDefault};
  if (*button == Button::EnterKey) return {byDefault, true};
  if (*button == Button::Ok && !box.yesNo()) return {screen::Answer::Ok};
  if (*button == Button::Yes && box.yesNo()) return {screen::Answer::Yes};
  if (*button == Button::No && box.yesNo()) return {screen::Answer::No};
  transcript_.error(std::string("el mensaje no tiene el botón ") + nameOf(*button));
  return {byDefault};
}

Reply<std::optional<std::size_t>> QueuedAnswers::answer(const screen::ListDialog& dialog) {
  transcript_.happening("lista",
                        dialog.title + " | " + std::to_string(dialog.rows.size()) + " filas");
  const std::optional<ListChoice> choice = takeFirst(choices_);
  if (!choice) return {std::nullopt};
  if (!choice->row) return {std::nullopt, choice->byEnter};
  if (*choice->row > dialog.rows.size()) {
    transcript_.error("la lista no tiene la fila " + std::to_string(*choice->row));
    return {std::nullopt};
  }
  return {*choice->row - 1, choice->byEnter};
}

std::optional<std::string> QueuedAnswers::answer(const screen::FileDialog& dialog) {
  transcript_.happening("fichero", dialog.filter);
  return takeFirst(files_).value_or(std::nullopt);
}

}  // namespace korvantes::scripts
