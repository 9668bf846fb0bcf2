#pragma once

#include <QImage>
#include <string>

#include "runtime/screen/picture.h"

namespace korvantes::desktop {

/// Reads a bmp, jpg, gif or tif file of at most 64 MiB and 20 megapixels. Throws ado::Error with a
/// Spanish sentence for any other file.
screen::Picture readPicture(const std::string& path);
/// Writes a picture as a bmp file; the file is complete or does not appear. Throws ado::Error.
void writePicture(const screen::Picture& picture, const std::string& path);
/// The pixels; a null image for the empty picture and for bytes that cannot be read.
QImage imageOf(const screen::Picture& picture);

}  // namespace korvantes::desktop
