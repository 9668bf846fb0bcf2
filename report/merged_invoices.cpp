#include "report/merged_invoices.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "runtime/ado/characters.h"
#include "runtime/ado/decimal.h"
#include "runtime/ado/error.h"

namespace korvantes::report {

namespace {

using ado::FieldType;

/// Where the value of a field comes from: the field of the same name, that text trimmed, or
/// neither.
enum class Valor { Copiado, Recortado, Aparte };

struct Campo {
  const char* nombre;
  FieldType tipo;
  int tamano;
  Valor valor;
};

constexpr Campo kPrimeros[] = {
    {"Fav_Id", FieldType::Double, 0, Valor::Copiado},
    {"Lca_Id", FieldType::Double, 0, Valor::Copiado},
    {"Age_Nom", FieldType::VarChar, 100, Valor::Copiado},
    {"Lca_Fecha", FieldType::Date, 0, Valor::Copiado},
};
constexpr Campo kFactura{"Factura", FieldType::VarChar, 20, Valor::Recortado};
constexpr Campo kFechaFactura{"Fav_Fecha", FieldType::Date, 0, Valor::Copiado};
constexpr Campo kCliente{"Fav_CliNom", FieldType::VarChar, 100, Valor::Recortado};
constexpr Campo kPorFecha[] = {kFactura, kFechaFactura, kCliente};
constexpr Campo kPorCliente[] = {kCliente, kFactura, kFechaFactura};
constexpr Campo kUltimos[] = {
    {"Fav_Bruto", FieldType::Double, 0, Valor::Copiado},
    {"Comision", FieldType::Double, 0, Valor::Copiado},
    {"Porcentaje", FieldType::Double, 0, Valor::Aparte},
    {"Age_Id", FieldType::Double, 0, Valor::Copiado},
    {"Fav_CliCod", FieldType::Double, 0, Valor::Copiado},
    {"Lca_Base", FieldType::Double, 0, Valor::Copiado},
    {"Fav_Serie", FieldType::VarChar, 10, Valor::Aparte},
    {"Fav_Numero", FieldType::Double, 0, Valor::Aparte},
    {"Age_Nif", FieldType::VarChar, 20, Valor::Copiado},
    {"Lca_Iva", FieldType::Double, 0, Valor::Copiado},
    {"Lca_Retencion", FieldType::Double, 0, Valor::Copiado},
    {"Lca_Total", FieldType::Double, 0, Valor::Copiado},
};

constexpr int kCentimos = 2;

ado::Variant recortado(const ado::Variant& valor) {
  if (valor.isNull()) return valor;
  const std::string& texto = valor.text();
  const std::string_view sinBlancos = ado::trimmed(texto);
  // An untouched value shares its text with the row it comes from.
  return sinBlancos.size() == texto.size() ? valor : ado::Variant(std::string(sinBlancos));
}

/// Joins the rows of one invoice, agent and settlement date.
///
/// Rows of one key have equal values in every column of the statement's order. They are adjacent
/// except for rows of other keys that tie with them: two agents of the same name may be
/// interleaved. Whether two texts tie depends on the engine's collation, so a run of ties is taken
/// to end where a date or the invoice number changes.
class Fusion {
 public:
  Fusion(const ado::Recordset& rsFilas, bool bPorFecha, const plindor::UtilFormulario& oUtil)
      : rsFilas_(rsFilas), bPorFecha_(bPorFecha), oUtil_(oUtil) {}

  /// Adds the current row of the statement.
  void agrega() {
    if (!rs_.isOpen()) prepara();
    const Empate empate{valor(fechaLiquidacion_), valor(fechaFactura_), valor(numeroFactura_)};
    if (empate != empate_) {
      empate_ = empate;
      filas_.clear();
    }

    const Clave clave{valor(factura_).asLong(), valor(agente_).asLong()};
    const auto [lugar, esNueva] = filas_.try_emplace(clave);
    Fila& fila = lugar->second;
    if (esNueva) {
      fila.posicion = rs_.RecordCount();
      rs_.AddNew();
      rellena();
    } else if (rs_.position() != fila.posicion) {
      rs_.moveTo(fila.posicion);
    }
    if (const ado::Variant& comision = valor(comision_); !comision.isNull())
      fila.comision = fila.comision.value_or(ado::Decimal()) + comision.asDecimal();
    if (fila.comision) {
      rs_.Collect("Comision", fila.comision->toDouble());
      calculaPorcentaje();
    }
    rs_.Update();
  }

  /// The invoices, positioned on the last; closed if there are none.
  ado::Recordset facturas() {
    if (rs_.isOpen()) rs_.MoveLast();
    return rs_;
  }

 private:
  /// What a run of ties has in common besides texts: both dates and the invoice number.
  using Empate = std::array<ado::Variant, 3>;
  using Clave =
      std::pair<std::int32_t, std::int32_t>;  ///< invoice and agent; the date is the run's
  struct Fila {
    std::size_t posicion = 0;
    std::optional<ado::Decimal> comision;
  };
  /// A field of the new recordset and where it comes from, by position: names are looked up once,
  /// not for every row.
  struct Copia {
    std::size_t desde, hasta;
    bool recortado;
  };

  /// Past the end, Fields() reports that there is no such field.
  std::size_t posicionDe(const char* nombre) const {
    return rsFilas_.positionOf(nombre).value_or(rsFilas_.Fields().Count());
  }
  const ado::Variant& valor(std::size_t posicion) const {
    return rsFilas_.Fields(posicion).Value();
  }

  void prepara();
  void rellena();
  void calculaPorcentaje();

  const ado::Recordset& rsFilas_;
  bool bPorFecha_;
  const plindor::UtilFormulario& oUtil_;
  ado::Recordset rs_;
  std::vector<Copia> copias_;
  std::size_t factura_ = 0, agente_ = 0, fechaLiquidacion_ = 0, fechaFactura_ = 0,
              numeroFactura_ = 0, bruto_ = 0, comision_ = 0;
  Empate empate_;
  std::map<Clave, Fila> filas_;  ///< of the run
};

/// Appends the fields and opens the recordset.
void Fusion::prepara() {
  const auto agrega = [&](const Campo& campo) {
    if (campo.valor != Valor::Aparte)
      copias_.push_back(
          {posicionDe(campo.nombre), rs_.Fields().Count(), campo.valor == Valor::Recortado});
    rs_.Fields().Append(campo.nombre, campo.tipo, campo.tamano);
  };
  for (const Campo& campo : kPrimeros) agrega(campo);
  for (const Campo& campo : bPorFecha_ ? kPorFecha : kPorCliente) agrega(campo);
  for (const Campo& campo : kUltimos) agrega(campo);
  factura_ = posicionDe("Fav_Id");
  agente_ = posicionDe("Age_Id");
  fechaLiquidacion_ = posicionDe("Lca_Fecha");
  fechaFactura_ = posicionDe("Fav_Fecha");
  numeroFactura_ = posicionDe("Fav_Numero");
  bruto_ = posicionDe("Fav_Bruto");
  comision_ = posicionDe("Comision");
  rs_.Open();
}

void Fusion::rellena() {
  for (const Copia& copia : copias_) {
    const ado::Variant& deFila = valor(copia.desde);
    rs_.Fields(copia.hasta).Value(copia.recortado ? recortado(deFila) : deFila);
  }
}

void Fusion::calculaPorcentaje() {
  const ado::Variant& bruto = valor(bruto_);
  if (bruto.isNull() || bruto.asDouble() == 0) return;
  rs_.Collect(
      "Porcentaje",
      oUtil_.Redondea(rs_.Collect("Comision").asDouble() * 100 / bruto.asDouble(), kCentimos));
}

}  // namespace

ado::Recordset facturasDe(ado::Recordset rsFilas, bool bPorFecha,
                          const plindor::UtilFormulario& oUtil) {
  Fusion fusion(rsFilas, bPorFecha, oUtil);
  for (; !rsFilas.isEOF() && !rsFilas.isBOF(); rsFilas.MoveNext()) fusion.agrega();
  return fusion.facturas();
}

}  // namespace korvantes::report
