#include "host/display.h"

#include <QFile>
#include <QLibraryInfo>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>

namespace korvantes::host {
namespace {

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

/// Uses the library that Qt's X plugin is linked with; the plugin comes with Qt.
bool xServerAnswers() {
  const std::unique_ptr<void, int (*)(void*)> library(::dlopen("libxcb.so.1", RTLD_NOW), ::dlclose);
  if (library == nullptr) return false;
  const auto connect =
      reinterpret_cast<void* (*)(const char*, int*)>(::dlsym(library.get(), "xcb_connect"));
  const auto hasError =
      reinterpret_cast<int (*)(void*)>(::dlsym(library.get(), "xcb_connection_has_error"));
  const auto disconnect =
      reinterpret_cast<void (*)(void*)>(::dlsym(library.get(), "xcb_disconnect"));
  if (connect == nullptr || hasError == nullptr || disconnect == nullptr) return false;
  // A failed connection is still an object that must be freed.
  const std::unique_ptr<void, void (*)(void*)> connection(connect(nullptr, nullptr), disconnect);
  return hasError(connection.get()) == 0;
}

bool waylandCanBeUsed() {
  const QString plugins = QLibraryInfo::path(QLibraryInfo::PluginsPath);
  return QFile::exists(plugins + "/platforms/libqwayland-generic.so");
}

}  // namespace

bool displayAnswers() {
  if (isSet("WAYLAND_DISPLAY") && waylandCanBeUsed()) return true;
  return isSet("DISPLAY") && xServerAnswers();
}

}  // namespace korvantes::host
