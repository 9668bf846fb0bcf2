#pragma once

namespace korvantes::screen {

/// Key codes as KeyUp receives them. Letters and digits have the code of the upper-case character.
namespace key {
constexpr int Back = 8, Tab = 9, Enter = 13, Shift = 16, Control = 17, Alt = 18, Escape = 27;
constexpr int Space = 32, PageUp = 33, PageDown = 34, End = 35, Home = 36;
constexpr int Left = 37, Up = 38, Right = 39, Down = 40, Insert = 45, Delete = 46;
constexpr int KeypadDecimal = 110, F1 = 112, F2 = 113, F4 = 115, F12 = 123, Comma = 188;
/// A character that has no key code of its own.
constexpr int Packet = 231;
/// Bits of the shift state.
constexpr int ShiftBit = 1, ControlBit = 2, AltBit = 4;
}  // namespace key

struct Key {
  int code = 0;
  int shift = 0;
  char32_t character = 0;  ///< what it types; 0 for a key that types nothing
};

/// The key that types a character.
Key keyTyping(char32_t character);

}  // namespace korvantes::screen
