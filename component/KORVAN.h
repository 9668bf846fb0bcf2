// component: the public class of the library, and the module through which the screens reach the
// host's database service.
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
///
/// Every operation is virtual and has a fixed slot, so that a host which loads the library with
/// dlopen calls them without linking it; library/factory.h has the rules.
class KORVAN {
 public:
  /// A new object, which also becomes the module's oComponente: from now on every screen uses its
  /// database service, even if opened through an older object.
  static std::shared_ptr<KORVAN> Create();

  KORVAN(const KORVAN&) = delete;
  KORVAN& operator=(const KORVAN&) = delete;

  /// Replaces the database service. A screen that is already open keeps the previous one for its
  /// search dialog until it closes; everything else uses the new one.
  virtual void MyBd(std::shared_ptr<plindor::BaseDatos> servicio) = 0;
  /// Returns the database service; nullptr if none has been set.
  virtual std::shared_ptr<plindor::BaseDatos> MyBd() const = 0;

  /// Open a screen modally: the agent master, the settlement entry on an empty settlement, the
  /// settlement report. Return when the user has closed it. Each call creates a new form.
  /// @param nAgente ignored: the agent master always opens on the whole list
  virtual void jShow(const std::int32_t& nAgente = 0) = 0;
  virtual void jShowNewLiqui() = 0;
  virtual void jShowInfLiqui() = 0;

  /// Commission of a document in currency units.
  /// @param nOrigen 2 order, 3 delivery note; anything else is an error
  /// @param nId header key
  /// @param nIdLi line key, 0 for the whole document
  /// @return 0 for keys that match nothing
  virtual double msComisionAgente(const std::int16_t& nOrigen, const std::int32_t& nId,
                                  const std::int32_t& nIdLi) = 0;

 protected:
  KORVAN() = default;
  // Objects are owned by shared_ptr, whose deleter knows their class: a virtual destructor would
  // take up slots.
  ~KORVAN() = default;
};

}  // namespace korvantes
