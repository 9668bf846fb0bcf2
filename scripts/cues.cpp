#include "scripts/cues.h"

#include <stdexcept>

namespace korvantes::scripts {

Reply<screen::Answer> Cues::answer(const screen::MessageBox& box) const {
  return onMessage ? onMessage(box) : box.defaultAnswer();
}

Reply<std::optional<std::size_t>> Cues::answer(const screen::ListDialog& dialog) const {
  if (!onList) return std::optional<std::size_t>();
  const auto reply = onList(dialog);
  if (reply.value && *reply.value >= dialog.rows.size())
    throw std::out_of_range("La lista «" + dialog.title + "» no tiene la fila " +
                            std::to_string(*reply.value + 1));
  return reply;
}

std::optional<std::string> Cues::answer(const screen::FileDialog& dialog) const {
  return onFile ? onFile(dialog) : std::nullopt;
}

}  // namespace korvantes::scripts
