#pragma once

#include <cstdint>
#include <optional>

#include "runtime/ado/variant.h"

namespace korvantes::screen {

/// Pixels of the largest picture accepted: a larger one could exhaust the memory.
constexpr std::int64_t kMostPixels = 20'000'000;

struct PictureSize {
  int width = 0, height = 0;  ///< pixels
  bool tooLarge() const { return std::int64_t{width} * height > kMostPixels; }
};

/// Size of the picture in a bmp, gif, jpg or tif file, from its first bytes; empty for any other
/// file and for one cut off before its size.
std::optional<PictureSize> pictureSize(const ado::Bytes& file);

/// Why a file is refused, to follow its name.
constexpr const char* kNoPicture = "no es una imagen bmp, jpg, gif o tif";
constexpr const char* kTooManyPixels = "tiene más de 20 millones de puntos";

}  // namespace korvantes::screen
