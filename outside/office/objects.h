// outside/office: outside objects, reached by a program identifier and by the names of their
// members, which are looked up at each call. Creating one that no host has registered is an error.
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

/// An omitted argument.
struct Omitted {};

/// What a member takes: a value, or a reference to one of the objects that both sides know.
using Argument = std::variant<Omitted, ado::Variant, ado::Recordset,
                              std::shared_ptr<plindor::BaseDatos>, screen::Control*>;

/// An object whose members are found by name, ignoring case. An unknown member and arguments that
/// do not fit are an ado::Error.
class Object {
 public:
  virtual ~Object() = default;
  virtual void set(std::string_view property, const Argument& value) = 0;
  virtual ado::Variant call(std::string_view method, const std::vector<Argument>& arguments) = 0;
};

/// The objects that a host offers.
class Registry {
 public:
  using Factory = std::function<std::unique_ptr<Object>()>;
  /// Replaces any earlier registration of the identifier.
  void add(std::string programId, Factory factory);
  /// Ignores case. Throws ado::Error 429 if nothing is registered under the identifier.
  std::unique_ptr<Object> create(std::string_view programId) const;

 private:
  std::vector<std::pair<std::string, Factory>> factories_;
};

/// The objects offered on a desktop.
Registry& objectsOf(screen::Desktop& desktop);

/// Creates an object from the registry of the current desktop.
std::unique_ptr<Object> CreateObject(std::string_view programId);

}  // namespace korvantes::office
