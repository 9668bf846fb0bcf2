#include "component/KORVAN.h"

#include "component/mdoKORVANTES.h"
#include "data/commission_rule.h"

namespace korvantes {

std::shared_ptr<KORVAN> KORVAN::Create() {
  auto objeto = std::make_shared<KORVAN>(Key{});
  objeto->Class_Initialize();
  return objeto;
}

double KORVAN::msComisionAgente(const std::int16_t& nOrigen, const std::int32_t& nId,
                                const std::int32_t& nIdLi) {
  return data::comisionAgente(mdoKORVANTES::servicioDe(*this)->Conexion(), nOrigen, nId, nIdLi);
}

}  // namespace korvantes
