#pragma once

#include <memory>
#include <string>

class QGuiApplication;

namespace korvantes::office {

/// Qt's application object for a process without windows, as fonts need one. It uses Qt's offscreen
/// platform whatever the environment says, leaves the locale of the process unchanged, and
/// suppresses Qt's warnings about an environment without a desktop.
class OffscreenApplication {
 public:
  OffscreenApplication();
  ~OffscreenApplication();
  OffscreenApplication(const OffscreenApplication&) = delete;
  OffscreenApplication& operator=(const OffscreenApplication&) = delete;

  /// Whether there is an application object of any kind: a second one must not be created.
  static bool exists();

 private:
  std::string name_, option_, platform_;
  int count_;
  char* arguments_[4];
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace korvantes::office
