#pragma once

#include <memory>
#include <string>

class QGuiApplication;

namespace korvantes::office {

/// Qt's application object for a process that shows nothing: fonts need one. It takes Qt's
/// offscreen platform whatever the environment says, leaves the process's locale as it was, and
/// keeps back what Qt has to say about an environment without a desktop.
class OffscreenApplication {
 public:
  OffscreenApplication();
  ~OffscreenApplication();
  OffscreenApplication(const OffscreenApplication&) = delete;
  OffscreenApplication& operator=(const OffscreenApplication&) = delete;

  /// There is an application object, of whatever kind: a second one must not be made.
  static bool exists();

 private:
  std::string name_, option_, platform_;
  int count_;
  char* arguments_[4];
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace korvantes::office
