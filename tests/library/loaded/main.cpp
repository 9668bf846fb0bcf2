#include <dlfcn.h>

#include "../host.h"
#include "library/factory.h"

namespace {

template <class Function>
Function* symbol(void* library, const char* name) {
  return reinterpret_cast<Function*>(dlsym(library, name));
}

}  // namespace

int main() {
  using Component = std::shared_ptr<korvantes::KORVAN>;

  void* library = dlopen(KORVANTES_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) std::fprintf(stderr, "%s\n", dlerror());
  host::require(library != nullptr, "the library can be opened");
  auto* version = symbol<decltype(korvantes_version)>(library, "korvantes_version");
  auto* create = symbol<decltype(korvantes_create)>(library, "korvantes_create");
  auto* release = symbol<decltype(korvantes_release)>(library, "korvantes_release");
  host::require(version && create && release, "the factory is exported");
  host::require(std::string(version()) == PACKAGE_VERSION, "one version everywhere");

  const auto component = static_cast<Component*>(create());
  host::use(**component, PACKAGE_VERSION);

  // The module keeps the newest object, also beyond main, and no other.
  const std::weak_ptr<korvantes::KORVAN> first = *component;
  release(component);
  host::require(!first.expired(), "an object outlives the host's reference");
  const auto second = static_cast<Component*>(create());
  host::require(first.expired(), "a second object takes its place");
  (*second)->MyBd(host::newDatabase("second.db"));
  release(second);
  release(nullptr);
}
