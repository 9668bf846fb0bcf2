#include "sample/lookups.h"

#include <span>
#include <string>
#include <utility>

#include "sample/rows.h"

namespace korvantes::sample {
namespace {

using Entry = std::pair<int, const char*>;

constexpr const char* kProvinceTable = "Vespara.dbo.PROV";
constexpr const char* kCountryTable = "Vespara.dbo.PAIS";
constexpr const char* kSituationTable = "Vespara.dbo.situaciones";
constexpr const char* kRateTable = "Vespara.dbo.Tivas";

constexpr Entry kProvinces[] = {
    {1, "Araba/Álava"},
    {2, "Albacete"},
    {3, "Alicante/Alacant"},
    {4, "Almería"},
    {5, "Ávila"},
    {6, "Badajoz"},
    {7, "Illes Balears"},
    {8, "Barcelona"},
    {9, "Burgos"},
    {10, "Cáceres"},
    {11, "Cádiz"},
    {12, "Castellón/Castelló"},
    {13, "Ciudad Real"},
    {14, "Córdoba"},
    {15, "A Coruña"},
    {16, "Cuenca"},
    {17, "Girona"},
    {18, "Granada"},
    {19, "Guadalajara"},
    {20, "Gipuzkoa"},
    {21, "Huelva"},
    {22, "Huesca"},
    {23, "Jaén"},
    {24, "León"},
    {25, "Lleida"},
    {26, "La Rioja"},
    {27, "Lugo"},
    {28, "Madrid"},
    {29, "Málaga"},
    {30, "Murcia"},
    {31, "Navarra"},
    {32, "Ourense"},
    {33, "Asturias"},
    {34, "Palencia"},
    {35, "Las Palmas"},
    {36, "Pontevedra"},
    {37, "Salamanca"},
    {38, "Santa Cruz de Tenerife"},
    {39, "Cantabria"},
    {40, "Segovia"},
    {41, "Sevilla"},
    {42, "Soria"},
    {43, "Tarragona"},
    {44, "Teruel"},
    {45, "Toledo"},
    {46, "Valencia/València"},
    {47, "Valladolid"},
    {48, "Bizkaia"},
    {49, "Zamora"},
    {50, "Zaragoza"},
    {51, "Ceuta"},
    {52, "Melilla"},
    {99, "Extranjero"},
};

// By telephone prefix. The agent screen starts on the tenth entry, which is España.
constexpr Entry kCountries[] = {
    {1, "Estados Unidos"}, {2, "Canadá"},      {7, "Rusia"},         {20, "Egipto"},
    {27, "Sudáfrica"},     {30, "Grecia"},     {31, "Países Bajos"}, {32, "Bélgica"},
    {33, "Francia"},       {34, "España"},     {36, "Hungría"},      {39, "Italia"},
    {40, "Rumanía"},       {41, "Suiza"},      {43, "Austria"},      {44, "Reino Unido"},
    {45, "Dinamarca"},     {46, "Suecia"},     {47, "Noruega"},      {48, "Polonia"},
    {49, "Alemania"},      {51, "Perú"},       {52, "México"},       {53, "Cuba"},
    {54, "Argentina"},     {55, "Brasil"},     {56, "Chile"},        {57, "Colombia"},
    {58, "Venezuela"},     {61, "Australia"},  {81, "Japón"},        {86, "China"},
    {90, "Turquía"},       {212, "Marruecos"}, {213, "Argelia"},     {351, "Portugal"},
    {352, "Luxemburgo"},   {353, "Irlanda"},   {376, "Andorra"},     {598, "Uruguay"},
};

struct Situation {
  int process;
  int language;
  int code;
  const char* text;
};

// Process 3 in language 0 is the tax regimes; the others belong to other screens of the sales
// application.
constexpr Situation kSituations[] = {
    {1, 0, 1, "Pendiente de facturar"},
    {1, 0, 2, "Facturado"},
    {1, 0, 3, "Anulado"},
    {1, 0, 4, "En depósito"},
    {2, 0, 1, "Pendiente"},
    {2, 0, 2, "Enviado al banco"},
    {2, 0, 3, "Aceptado"},
    {2, 0, 4, "Aplazado"},
    {2, 0, 5, "Cobrado"},
    {2, 0, 6, "Devuelto"},
    {2, 0, 7, "Impagado"},
    {2, 0, 8, "Anulado"},
    {3, 0, 1, "Profesional, retención general"},
    {3, 0, 2, "Profesional, inicio de actividad"},
    {3, 0, 3, "Colaborador ocasional"},
    {3, 0, 4, "Sociedad mercantil"},
    {3, 0, 5, "Canarias (IGIC)"},
    {3, 0, 6, "Operador intracomunitario"},
    {3, 0, 7, "Exento de IVA"},
    {3, 0, 8, "No residente sin convenio"},
    {3, 1, 1, "Professional, retenció general"},
    {3, 1, 2, "Professional, inici d'activitat"},
    {3, 1, 3, "Col·laborador ocasional"},
    {3, 1, 4, "Societat mercantil"},
};

std::vector<Row> entries(std::span<const Entry> list) {
  std::vector<Row> rows;
  for (const auto& [code, name] : list) rows.push_back({code, name});
  return rows;
}

bool isEmpty(ado::Connection& connection, const char* table) {
  return connection.Execute(std::string("Select count(*) from ") + table)
             .Fields(0)
             .Value()
             .asLong() == 0;
}

}  // namespace

const std::vector<Rate>& sampleRates() {
  // Regime 8 has none. Kinds 2 and 3 are rates of goods, newer than those of the agents.
  static const std::vector<Rate> kRates = {
      {1, 1, 1, {1995, 1, 1}, 1600, 1500},  {2, 1, 1, {2010, 7, 1}, 1800, 1500},
      {3, 1, 1, {2012, 9, 1}, 2100, 2100},  {4, 1, 1, {2015, 1, 1}, 2100, 1900},
      {5, 1, 1, {2015, 7, 12}, 2100, 1500}, {6, 2, 1, {2012, 9, 1}, 2100, 900},
      {7, 2, 1, {2015, 7, 12}, 2100, 700},  {8, 3, 1, {2015, 7, 12}, 2100, 1500},
      {9, 3, 1, {2025, 7, 1}, 2100, 1900},  {10, 4, 1, {2010, 7, 1}, 1800, 0},
      {11, 4, 1, {2012, 9, 1}, 2100, 0},    {12, 5, 1, {2019, 1, 1}, 650, 1500},
      {13, 5, 1, {2020, 1, 1}, 700, 1500},  {14, 6, 1, {2013, 7, 1}, 0, 0},
      {15, 7, 1, {2015, 7, 12}, 0, 1500},   {16, 1, 2, {2025, 1, 1}, 1000, 0},
      {17, 1, 3, {2025, 1, 1}, 400, 0},     {18, 3, 2, {2026, 1, 1}, 1000, 200},
      {19, 5, 2, {2026, 1, 1}, 300, 0},     {20, 2, 1, {2027, 1, 1}, 2100, 1500},
  };
  return kRates;
}

std::optional<Rate> rateInForce(int regime, const std::optional<ado::Date>& day) {
  std::optional<Rate> best;
  for (const Rate& rate : sampleRates())
    if (rate.regime == regime && rate.article == 1 && (!day || rate.from <= *day) &&
        (!best || rate.from > best->from))
      best = rate;
  return best;
}

bool loadLookups(ado::Connection& connection) {
  bool written = false;
  const auto fill = [&](const char* table, const char* columns, const std::vector<Row>& rows) {
    if (!isEmpty(connection, table)) return;
    insertRows(connection, table, columns, rows);
    written = true;
  };
  fill(kProvinceTable, "PROV_COD, PROV_NOM", entries(kProvinces));
  fill(kCountryTable, "PAIS_COD, PAIS_NOM", entries(kCountries));

  std::vector<Row> situations;
  for (const Situation& it : kSituations)
    situations.push_back({it.process, it.language, it.code, it.text});
  fill(kSituationTable, "Sit_Proceso, Sit_Idioma, Sit_Cod, Sit_Des", situations);

  std::vector<Row> rates;
  for (const Rate& it : sampleRates())
    rates.push_back({it.id, it.regime, it.article, it.from, ado::Decimal(it.vat, 2),
                     ado::Decimal(it.withholding, 2)});
  fill(kRateTable, "Tiva_Id, Tiva_reg, Tiva_Art, Tiva_Fecha, Tiva_Iva, Tiva_Ret", rates);
  return written;
}

bool lacksLookups(ado::Connection& connection) {
  for (const char* table : {kProvinceTable, kCountryTable, kSituationTable, kRateTable})
    if (isEmpty(connection, table)) return true;
  return false;
}

}  // namespace korvantes::sample
