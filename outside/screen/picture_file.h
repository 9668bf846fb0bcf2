#pragma once

#include <optional>

#include "outside/ado/variant.h"

namespace korvantes::screen {

struct PictureSize {
  int width = 0, height = 0;  ///< pixels
};

/// Size of the picture in a bmp, gif, jpg or tif file, from its first bytes; nothing for any other
/// file and for one cut off before its size.
std::optional<PictureSize> pictureSize(const ado::Bytes& file);

}  // namespace korvantes::screen
