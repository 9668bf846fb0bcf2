#pragma once

#include <array>

namespace korvantes::ado {

/// A letter for comparison: the code of its unaccented lower-case letter, and the number of its
/// accent among the combining marks (U+0300 is 1), 0 if it has none.
struct FoldedLetter {
  char16_t letter;
  unsigned char accent;
};

constexpr char32_t kFirstFoldedLetter = 0xC0;

/// The letters U+00C0 to U+017F by their canonical decompositions; eight to a line.
// clang-format off
constexpr std::array<FoldedLetter, 192> kFoldedLetters{{
    {u'a', 1}, {u'a', 2}, {u'a', 3}, {u'a', 4}, {u'a', 9}, {u'a', 11}, {0xE6, 0}, {u'c', 40},
    {u'e', 1}, {u'e', 2}, {u'e', 3}, {u'e', 9}, {u'i', 1}, {u'i', 2}, {u'i', 3}, {u'i', 9},
    {0xF0, 0}, {u'n', 4}, {u'o', 1}, {u'o', 2}, {u'o', 3}, {u'o', 4}, {u'o', 9}, {0xD7, 0},
    {0xF8, 0}, {u'u', 1}, {u'u', 2}, {u'u', 3}, {u'u', 9}, {u'y', 2}, {0xFE, 0}, {0xDF, 0},
    {u'a', 1}, {u'a', 2}, {u'a', 3}, {u'a', 4}, {u'a', 9}, {u'a', 11}, {0xE6, 0}, {u'c', 40},
    {u'e', 1}, {u'e', 2}, {u'e', 3}, {u'e', 9}, {u'i', 1}, {u'i', 2}, {u'i', 3}, {u'i', 9},
    {0xF0, 0}, {u'n', 4}, {u'o', 1}, {u'o', 2}, {u'o', 3}, {u'o', 4}, {u'o', 9}, {0xF7, 0},
    {0xF8, 0}, {u'u', 1}, {u'u', 2}, {u'u', 3}, {u'u', 9}, {u'y', 2}, {0xFE, 0}, {u'y', 9},
    {u'a', 5}, {u'a', 5}, {u'a', 7}, {u'a', 7}, {u'a', 41}, {u'a', 41}, {u'c', 2}, {u'c', 2},
    {u'c', 3}, {u'c', 3}, {u'c', 8}, {u'c', 8}, {u'c', 13}, {u'c', 13}, {u'd', 13}, {u'd', 13},
    {0x111, 0}, {0x111, 0}, {u'e', 5}, {u'e', 5}, {u'e', 7}, {u'e', 7}, {u'e', 8}, {u'e', 8},
    {u'e', 41}, {u'e', 41}, {u'e', 13}, {u'e', 13}, {u'g', 3}, {u'g', 3}, {u'g', 7}, {u'g', 7},
    {u'g', 8}, {u'g', 8}, {u'g', 40}, {u'g', 40}, {u'h', 3}, {u'h', 3}, {0x127, 0}, {0x127, 0},
    {u'i', 4}, {u'i', 4}, {u'i', 5}, {u'i', 5}, {u'i', 7}, {u'i', 7}, {u'i', 41}, {u'i', 41},
    {u'i', 8}, {0x131, 0}, {0x133, 0}, {0x133, 0}, {u'j', 3}, {u'j', 3}, {u'k', 40}, {u'k', 40},
    {0x138, 0}, {u'l', 2}, {u'l', 2}, {u'l', 40}, {u'l', 40}, {u'l', 13}, {u'l', 13}, {0x140, 0},
    {0x140, 0}, {0x142, 0}, {0x142, 0}, {u'n', 2}, {u'n', 2}, {u'n', 40}, {u'n', 40}, {u'n', 13},
    {u'n', 13}, {0x149, 0}, {0x14B, 0}, {0x14B, 0}, {u'o', 5}, {u'o', 5}, {u'o', 7}, {u'o', 7},
    {u'o', 12}, {u'o', 12}, {0x153, 0}, {0x153, 0}, {u'r', 2}, {u'r', 2}, {u'r', 40}, {u'r', 40},
    {u'r', 13}, {u'r', 13}, {u's', 2}, {u's', 2}, {u's', 3}, {u's', 3}, {u's', 40}, {u's', 40},
    {u's', 13}, {u's', 13}, {u't', 40}, {u't', 40}, {u't', 13}, {u't', 13}, {0x167, 0}, {0x167, 0},
    {u'u', 4}, {u'u', 4}, {u'u', 5}, {u'u', 5}, {u'u', 7}, {u'u', 7}, {u'u', 11}, {u'u', 11},
    {u'u', 12}, {u'u', 12}, {u'u', 41}, {u'u', 41}, {u'w', 3}, {u'w', 3}, {u'y', 3}, {u'y', 3},
    {u'y', 9}, {u'z', 2}, {u'z', 2}, {u'z', 8}, {u'z', 8}, {u'z', 13}, {u'z', 13}, {0x17F, 0},
}};
// clang-format on

}  // namespace korvantes::ado
