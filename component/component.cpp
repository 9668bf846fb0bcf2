#include "component/component.h"

#include <utility>

#include "component/mdoKORVANTES.h"
#include "data/commission_rule.h"

namespace korvantes {

std::shared_ptr<KORVAN> KORVAN::Create() {
  auto objeto = std::make_shared<Component>();
  objeto->Class_Initialize();
  return objeto;
}

void Component::MyBd(std::shared_ptr<plindor::BaseDatos> servicio) {
  miBd_ = std::move(servicio);
}

std::shared_ptr<plindor::BaseDatos> Component::MyBd() const {
  return miBd_;
}

double Component::msComisionAgente(const std::int16_t& nOrigen, const std::int32_t& nId,
                                   const std::int32_t& nIdLi) {
  return data::comisionAgente(mdoKORVANTES::servicioDe(*this)->Conexion(), nOrigen, nId, nIdLi);
}

}  // namespace korvantes
