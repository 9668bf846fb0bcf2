#pragma once

#include <any>
#include <memory>
#include <string>

#include "runtime/ado/variant.h"

namespace korvantes::screen {

/// A picture, shared by its copies: the bytes of one image file and what a desktop found in it.
/// A default-constructed picture is empty.
class Picture {
 public:
  Picture() = default;
  /// `decoded` is the image that the desktop has decoded from the file and shows, kept so that it
  /// need not decode it again.
  Picture(ado::Bytes file, int width, int height, std::any decoded = {})
      : data_(std::make_shared<const Data>(
            Data{std::move(file), width, height, std::move(decoded)})) {}

  bool empty() const { return !data_; }
  /// Bytes of the image file. Only for a picture that is not empty, like everything below.
  const ado::Bytes& file() const { return data_->file; }
  int width() const { return data_->width; }
  int height() const { return data_->height; }
  const std::any& decoded() const { return data_->decoded; }

  /// Returns whether both share one picture; equal bytes are not enough.
  friend bool operator==(const Picture& a, const Picture& b) { return a.data_ == b.data_; }

 private:
  struct Data {
    ado::Bytes file;
    int width, height;
    std::any decoded;
  };
  std::shared_ptr<const Data> data_;
};

/// "(ninguna)" or "640 x 480".
std::string printValue(const Picture& picture);

}  // namespace korvantes::screen
