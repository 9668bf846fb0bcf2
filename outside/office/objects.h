// outside/office: outside objects reached by a program identifier and by names of members, looked
// up when they are called. Until a host registers such an object, creating it is a clear error.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "runtime/ado/recordset.h"

namespace korvantes::plindor {
class BaseDatos;
}
namespace korvantes::screen {
class Control;
class Desktop;
}  // namespace korvantes::screen

namespace korvantes::office {

/// An argument left out.
struct Omitted {};

/// What passes to a member: a value, or a reference to one of the objects both sides know.
using Argument = std::variant<Omitted, ado::Variant, ado::Recordset,
                              std::shared_ptr<plindor::BaseDatos>, screen::Control*>;

/// An object whose members are found by name, without regard to case. A member that it does not
/// have, or arguments that do not fit, are an ado::Error.
class Object {
 public:
  virtual ~Object() = default;
  virtual void set(std::string_view property, const Argument& value) = 0;
  virtual ado::Variant call(std::string_view method, const std::vector<Argument>& arguments) = 0;
};

/// The objects a host offers.
class Registry {
 public:
  using Factory = std::function<std::unique_ptr<Object>()>;
  /// Replaces an earlier registration of that identifier.
  void add(std::string programId, Factory factory);
  /// Without regard to case. Throws ado::Error 429 when nothing is registered under it.
  std::unique_ptr<Object> create(std::string_view programId) const;

 private:
  std::vector<std::pair<std::string, Factory>> factories_;
};

/// The objects that a host offers on a desktop.
Registry& objectsOf(screen::Desktop& desktop);

/// Creates an object that the current desktop's registry offers.
std::unique_ptr<Object> CreateObject(std::string_view programId);

}  // namespace korvantes::office
