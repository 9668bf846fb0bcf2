// component: the public class that a host loads, and the module through which the screens reach
// the host's database service.
#pragma once

#include <cstdint>
#include <memory>

#include "outside/plindor/base_datos.h"

namespace korvantes {

/// The commission-agent module. Order of calls: Create, MyBd, then any number of the others, all in
/// the host's user-interface thread, with a screen::Desktop made current for the show calls.
///
/// The class catches nothing: a failure while a screen is loaded, or of msComisionAgente, reaches
/// the caller as an exception; without MyBd that is an ado::Error that says so.
class KORVAN : public std::enable_shared_from_this<KORVAN> {
  struct Key {};

 public:
  /// A new object, which also becomes the module's oComponente: from now on every screen works on
  /// its database service, also those opened through an older object.
  static std::shared_ptr<KORVAN> Create();
  explicit KORVAN(Key) {}

  /// Replaces the database service; nothing keeps a copy of the former one but open screens.
  void MyBd(std::shared_ptr<plindor::BaseDatos> servicio) { miBd_ = std::move(servicio); }
  /// What was set; nullptr before that.
  const std::shared_ptr<plindor::BaseDatos>& MyBd() const { return miBd_; }

  /// Open a screen modally: the agent master, the settlement entry on an empty settlement, the
  /// settlement report. Return when the user has closed it. Each call makes a fresh form.
  /// @param nAgente has no effect: the agent master always opens on the whole list
  void jShow(const std::int32_t& nAgente = 0);
  void jShowNewLiqui();
  void jShowInfLiqui();

  /// Commission of a document in currency units.
  /// @param nOrigen 2 order, 3 delivery note; anything else is an error
  /// @param nId header key
  /// @param nIdLi line key, 0 for the whole document
  /// @return 0 for keys that match nothing
  double msComisionAgente(const std::int16_t& nOrigen, const std::int32_t& nId,
                          const std::int32_t& nIdLi);

 private:
  void Class_Initialize();
  std::shared_ptr<plindor::BaseDatos> miBd_;
};

}  // namespace korvantes
