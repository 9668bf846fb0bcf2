#include "library/factory.h"

#include <new>

#include "component/KORVAN.h"
#include "component/mdoKORVANTES.h"

using Component = std::shared_ptr<korvantes::KORVAN>;

const char* korvantes_version() {
  return korvantes::mdoKORVANTES::version();
}

void* korvantes_create() {
  try {
    return std::make_unique<Component>(korvantes::KORVAN::Create()).release();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void korvantes_release(void* component) {
  const std::unique_ptr<Component> owned(static_cast<Component*>(component));
}
