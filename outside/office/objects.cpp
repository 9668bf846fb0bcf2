#include "outside/office/objects.h"

#include <algorithm>

#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"
#include "runtime/screen/desktop.h"

namespace korvantes::office {

namespace {

/// The runtime's number for an object that cannot be created.
constexpr long kCannotCreate = 429;

}  // namespace

void Registry::add(std::string programId, Factory factory) {
  const auto place = std::find_if(factories_.begin(), factories_.end(), [&](const auto& entry) {
    return ado::sameName(entry.first, programId);
  });
  if (place != factories_.end())
    place->second = std::move(factory);
  else
    factories_.emplace_back(std::move(programId), std::move(factory));
}

std::unique_ptr<Object> Registry::create(std::string_view programId) const {
  for (const auto& [name, factory] : factories_) {
    if (!ado::sameName(name, programId)) continue;
    if (auto object = factory ? factory() : nullptr) return object;
    throw ado::Error(kCannotCreate,
                     "No se ha podido crear el componente «" + std::string(programId) + "»");
  }
  throw ado::Error(kCannotCreate, "No hay ningún componente registrado con el nombre «" +
                                      std::string(programId) + "»");
}

Registry& objectsOf(screen::Desktop& desktop) {
  return desktop.attached<Registry>();
}

std::unique_ptr<Object> CreateObject(std::string_view programId) {
  return objectsOf(screen::Desktop::current()).create(programId);
}

}  // namespace korvantes::office
