#pragma once

#include "component/KORVAN.h"

namespace korvantes {

/// What KORVAN::Create makes. The show operations are defined in library/, above the screens, so
/// that this folder does not depend on them.
class Component final : public KORVAN, public std::enable_shared_from_this<Component> {
 public:
  /// Makes this object the module's oComponente.
  void Class_Initialize();

  void MyBd(std::shared_ptr<plindor::BaseDatos> servicio) override;
  std::shared_ptr<plindor::BaseDatos> MyBd() const override;
  void jShow(const std::int32_t& nAgente) override;
  void jShowNewLiqui() override;
  void jShowInfLiqui() override;
  double msComisionAgente(const std::int16_t& nOrigen, const std::int32_t& nId,
                          const std::int32_t& nIdLi) override;

 private:
  std::shared_ptr<plindor::BaseDatos> miBd_;
};

}  // namespace korvantes
