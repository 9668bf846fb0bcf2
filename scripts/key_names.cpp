#include "scripts/key_names.h"

#include <array>

#include "runtime/ado/characters.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"

namespace korvantes::scripts {

namespace key = screen::key;

namespace {

struct Name {
  std::string_view name;
  int value;
};

constexpr std::array kKeys{
    Name{"Enter", key::Enter},
    Name{"Intro", key::Enter},
    Name{"Tab", key::Tab},
    Name{"Tabulador", key::Tab},
    Name{"Escape", key::Escape},
    Name{"Esc", key::Escape},
    Name{"Supr", key::Delete},
    Name{"Suprimir", key::Delete},
    Name{"Delete", key::Delete},
    Name{"Insert", key::Insert},
    Name{"Retroceso", key::Back},
    Name{"Backspace", key::Back},
    Name{"Espacio", key::Space},
    Name{"Space", key::Space},
    Name{"Arriba", key::Up},
    Name{"Abajo", key::Down},
    Name{"Izquierda", key::Left},
    Name{"Derecha", key::Right},
    Name{"Up", key::Up},
    Name{"Down", key::Down},
    Name{"Left", key::Left},
    Name{"Right", key::Right},
    Name{"Inicio", key::Home},
    Name{"Home", key::Home},
    Name{"Fin", key::End},
    Name{"End", key::End},
    Name{"AvPág", key::PageDown},
    Name{"AvPag", key::PageDown},
    Name{"PageDown", key::PageDown},
    Name{"RePág", key::PageUp},
    Name{"RePag", key::PageUp},
    Name{"PageUp", key::PageUp},
    Name{"Decimal", key::KeypadDecimal},
};

constexpr std::array kModifiers{
    Name{"Mayús", key::ShiftBit},     Name{"Mayus", key::ShiftBit},  Name{"Shift", key::ShiftBit},
    Name{"Control", key::ControlBit}, Name{"Ctrl", key::ControlBit}, Name{"Alt", key::AltBit},
};

template <class Names>
std::optional<int> valueOf(const Names& names, std::string_view name) {
  for (const Name& known : names)
    if (ado::compareTexts(known.name, name) == 0) return known.value;
  return std::nullopt;
}

/// "F1" to "F12".
std::optional<int> functionKey(std::string_view name) {
  if (name.size() < 2 || name.size() > 3 || (name[0] != 'F' && name[0] != 'f')) return std::nullopt;
  int number = 0;
  for (const char digit : name.substr(1)) {
    if (!ado::isDigit(digit)) return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  if (number < 1 || number > 12) return std::nullopt;
  return key::F1 + number - 1;
}

std::optional<screen::Key> plainKey(std::string_view name) {
  if (ado::characterCount(name) == 1) return screen::keyTyping(ado::toCodePoints(name)[0]);
  std::optional<int> code = valueOf(kKeys, name);
  if (!code) code = functionKey(name);
  if (!code) return std::nullopt;
  return screen::Key{*code, 0, *code == key::Space ? U' ' : U'\0'};
}

}  // namespace

std::optional<screen::Key> keyNamed(std::string_view name) {
  int modifiers = 0;
  // A + at the end is the key itself.
  for (auto plus = name.find('+');
       plus != std::string_view::npos && plus > 0 && plus + 1 < name.size();
       plus = name.find('+')) {
    const auto modifier = valueOf(kModifiers, name.substr(0, plus));
    if (!modifier) return std::nullopt;
    modifiers |= *modifier;
    name.remove_prefix(plus + 1);
  }
  std::optional<screen::Key> key = plainKey(name);
  if (!key) return std::nullopt;
  key->shift |= modifiers;
  // A chord is a command and types nothing, whatever its letter.
  if ((modifiers & (key::ControlBit | key::AltBit)) != 0) {
    key->character = 0;
    key->shift = modifiers;
  }
  return key;
}

}  // namespace korvantes::scripts
