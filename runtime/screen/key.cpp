#include "runtime/screen/key.h"

#include "runtime/screen/letters.h"

namespace korvantes::screen {

Key keyTyping(char32_t character) {
  switch (character) {
    case U'\b':
      return {key::Back, 0, 0};
    case U'\t':
      return {key::Tab, 0, 0};
    case U'\n':
    case U'\r':
      return {key::Enter, 0, 0};
    case 27:
      return {key::Escape, 0, 0};
    case U' ':
      return {key::Space, 0, character};
    case U',':
      return {key::Comma, 0, character};
    default:
      break;
  }
  if (!isLetterOrDigit(character)) return {key::Packet, 0, character};
  const char32_t upper = upperCase(character);
  const bool shifted = upper == character && !(character >= U'0' && character <= U'9');
  return {static_cast<int>(upper), shifted ? key::ShiftBit : 0, character};
}

}  // namespace korvantes::screen
