#include "report/merged_invoices.h"

#include <string>
#include <vector>

#include "runtime/ado/characters.h"

namespace korvantes::report {

namespace {

using ado::FieldType;

/// Where the value of a field comes from: the field of the same name, that text without blanks
/// around, or from elsewhere or nowhere.
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

/// A field of the new recordset and where it comes from, by position: names are looked up once,
/// not at every row.
struct Copia {
  std::size_t desde, hasta;
  bool recortado;
};

/// Appends the fields and opens the recordset.
std::vector<Copia> prepara(ado::Recordset& rs, const ado::Recordset& rsFilas, bool bPorFecha) {
  std::vector<Copia> copias;
  const auto agrega = [&](const Campo& campo) {
    if (campo.valor != Valor::Aparte) {
      // Past the end, Fields() says that there is no such field.
      const std::size_t desde = rsFilas.positionOf(campo.nombre).value_or(rsFilas.Fields().Count());
      copias.push_back({desde, rs.Fields().Count(), campo.valor == Valor::Recortado});
    }
    rs.Fields().Append(campo.nombre, campo.tipo, campo.tamano);
  };
  for (const Campo& campo : kPrimeros) agrega(campo);
  for (const Campo& campo : bPorFecha ? kPorFecha : kPorCliente) agrega(campo);
  for (const Campo& campo : kUltimos) agrega(campo);
  rs.Open();
  return copias;
}

ado::Variant recortado(const ado::Variant& valor) {
  if (valor.isNull()) return valor;
  const std::string& texto = valor.text();
  const std::string_view sinBlancos = ado::trimmed(texto);
  // An untouched value shares its text with the row it comes from.
  return sinBlancos.size() == texto.size() ? valor : ado::Variant(std::string(sinBlancos));
}

void rellena(ado::Recordset& rs, const ado::Recordset& rsFilas, const std::vector<Copia>& copias) {
  for (const Copia& copia : copias) {
    const ado::Variant& valor = rsFilas.Fields(copia.desde).Value();
    rs.Fields(copia.hasta).Value(copia.recortado ? recortado(valor) : valor);
  }
}

/// Agent and settlement date tell the settlements of one row from those of another: the amounts of
/// two agents, or of two dates, never come together.
bool mismaLiquidacion(const ado::Recordset& rs, const ado::Recordset& rsFilas) {
  return rs.Collect("Age_Id").asLong() == rsFilas.Collect("Age_Id").asLong() &&
         rs.Collect("Lca_Fecha") == rsFilas.Collect("Lca_Fecha");
}

/// Null only when both are.
ado::Variant sumaDe(const ado::Variant& a, const ado::Variant& b,
                    const plindor::UtilFormulario& oUtil) {
  if (a.isNull()) return b;
  if (b.isNull()) return a;
  // Cents do not add up exactly in a double.
  return oUtil.Redondea(a.asDouble() + b.asDouble(), kCentimos);
}

void calculaPorcentaje(ado::Recordset& rs, const ado::Variant& bruto,
                       const plindor::UtilFormulario& oUtil) {
  const ado::Variant& comision = rs.Collect("Comision");
  if (bruto.isNull() || bruto.asDouble() == 0 || comision.isNull()) return;
  rs.Collect("Porcentaje", oUtil.Redondea(comision.asDouble() * 100 / bruto.asDouble(), kCentimos));
}

}  // namespace

ado::Recordset facturasDe(ado::Recordset rsFilas, bool bPorFecha,
                          const plindor::UtilFormulario& oUtil) {
  ado::Recordset rs;
  std::vector<Copia> copias;
  for (; !rsFilas.isEOF() && !rsFilas.isBOF(); rsFilas.MoveNext()) {
    if (!rs.isOpen()) copias = prepara(rs, rsFilas, bPorFecha);

    // Looks from the row last written on, at one row at most.
    rs.Find("Fav_Id = " + std::to_string(rsFilas.Collect("Fav_Id").asLong()));
    if (rs.isEOF() || rs.isBOF() || !mismaLiquidacion(rs, rsFilas)) {
      rs.AddNew();
      rellena(rs, rsFilas, copias);
    } else {
      rs.Collect("Comision", sumaDe(rs.Collect("Comision"), rsFilas.Collect("Comision"), oUtil));
    }
    calculaPorcentaje(rs, rsFilas.Collect("Fav_Bruto"), oUtil);
    rs.Update();
  }
  return rs;
}

}  // namespace korvantes::report
