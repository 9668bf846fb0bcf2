#include "tests/report/independent_search.h"

#include <algorithm>

#include "runtime/ado/characters.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"
#include "tests/component/exact_commission.h"

namespace korvantes::report {

namespace {

using ado::Decimal;
using ado::Variant;

std::vector<std::string> orderOf(Forma shape, bool byDate) {
  if (shape == Forma::Resumen) return {"lca_idag", "lca_fecha"};
  if (byDate) return {"age_nom", "lca_fecha", "fav_fecha", "fav_serie", "fav_numero"};
  return {"age_nom", "lca_fecha", "fav_clinom", "fav_fecha", "fav_serie", "fav_numero"};
}

std::string lowered(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(c));
  return text;
}

std::string valueText(const Variant& value) {
  if (value.isNull()) return "Null";
  if (value.kind() == Variant::Kind::Text) return value.text();
  if (value.kind() == Variant::Kind::Date) return value.date().iso();
  return value.asDecimal().rescaled(4).text();
}

/// -1, 0, 1; Null comes first.
int compared(const Variant& a, const Variant& b) {
  if (a.isNull() || b.isNull()) return int{b.isNull()} - int{a.isNull()};
  if (a.kind() == Variant::Kind::Text) return ado::compareTexts(a.text(), b.text());
  if (a.kind() == Variant::Kind::Date) return a.date() < b.date() ? -1 : b.date() < a.date();
  return a.whole() < b.whole() ? -1 : b.whole() < a.whole();
}

std::vector<Record> read(ado::Connection& connection, const std::string& statement) {
  const ado::Recordset rows = connection.Execute(statement);
  std::vector<Record> records;
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) records.push_back(recordOf(rows, row));
  return records;
}

std::map<int, Record> byId(std::vector<Record> records, const std::string& key) {
  std::map<int, Record> found;
  for (Record& record : records) found[record.at(key).asLong()] = std::move(record);
  return found;
}

const Record* find(const std::map<int, Record>& table, const Variant& key) {
  const auto found = key.isNull() ? table.end() : table.find(key.asLong());
  return found == table.end() ? nullptr : &found->second;
}

std::optional<std::int64_t> units(const Variant& value) {
  if (value.isNull()) return std::nullopt;
  return value.decimal().units();
}

Variant sumOf(const Variant& a, const Variant& b) {
  if (a.isNull() || b.isNull()) return {};
  return Decimal::money(a.decimal().units() + b.decimal().units());
}

/// Series, stroke and the number in five places, or a star where it has more.
Variant document(const Variant& series, const Variant& number) {
  if (series.isNull() || number.isNull()) return {};
  std::string digits = std::to_string(number.whole());
  if (digits.size() > 5) digits = "*";
  digits.resize(5, ' ');
  return series.text() + "/" + digits;
}

Variant ofCents(std::int64_t cents) {
  return Decimal::money(cents * 100);
}

/// Hundredths of a percent, half away from zero.
Variant percentage(const Variant& commission, const Variant& gross) {
  if (commission.isNull() || gross.isNull() || gross.decimal().units() == 0) return {};
  const std::int64_t part = commission.decimal().units() * 10'000, whole = gross.decimal().units();
  const std::int64_t rounded = (2 * std::abs(part) + std::abs(whole)) / (2 * std::abs(whole));
  return Decimal((part < 0) == (whole < 0) ? rounded : -rounded, 2);
}

/// Makes a row of the result of an invoice and its commission.
void finish(Record& invoice) {
  invoice["porcentaje"] = percentage(invoice["comision"], invoice.at("fav_bruto"));
  for (const char* name : {"factura", "fav_clinom"})
    if (Variant& text = invoice.at(name); !text.isNull())
      text = std::string(ado::trimmed(text.text()));
  if (Variant& taxNumber = invoice.at("age_nif"); !taxNumber.isNull())
    taxNumber = std::string(ado::firstCharacters(taxNumber.text(), 20));
}

bool within(const Record& settlement, const Limits& limits) {
  if (limits.agent != 0 && settlement.at("lca_idag").asLong() != limits.agent) return false;
  if (!limits.from && !limits.to) return true;
  const Variant& date = settlement.at("lca_fecha");
  if (date.isNull()) return false;
  return (!limits.from || date.date() >= *limits.from) && (!limits.to || date.date() <= *limits.to);
}

}  // namespace

Record recordOf(const ado::Recordset& rows, std::size_t row) {
  Record record;
  for (std::size_t field = 0; field < rows.definitions().size(); ++field)
    record[lowered(rows.definitions()[field].name)] = rows.cell(row, field);
  return record;
}

std::string textOf(const Record& record, const ado::Recordset& rows) {
  std::string text;
  for (const ado::FieldDefinition& field : rows.definitions())
    text += field.name + "=" + valueText(record.at(lowered(field.name))) + " ";
  return text;
}

RawTables::RawTables(ado::Connection& connection)
    : settlements_(read(connection, "SELECT * FROM Lca")),
      agents_(byId(read(connection, "SELECT AGE_ID, AGE_NOM, AGE_NIF FROM Age"), "age_id")),
      notes_(byId(read(connection, "SELECT * FROM Cav"), "cav_id")),
      invoices_(byId(read(connection, "SELECT * FROM Fav"), "fav_id")),
      customers_(byId(read(connection, "SELECT Cli_Id FROM Cli"), "cli_id")) {
  for (const Record& detail : read(connection, "SELECT * FROM Lcd"))
    notesOf_[detail.at("lcd_idlca").asLong()].push_back(detail.at("lcd_idcav").asLong());
  for (Record& line : read(connection, "SELECT * FROM Lav"))
    linesOf_[line.at("lav_idcav").asLong()].push_back(std::move(line));
}

std::int64_t RawTables::totalCents(const Limits& limits) const {
  std::int64_t total = 0;
  for (const Record& settlement : settlements_)
    if (within(settlement, limits)) total += units(settlement.at("lca_base")).value_or(0) / 100;
  return total;
}

Groups RawTables::search(Forma shape, bool byDate, const Limits& limits) {
  std::vector<Record> rows;
  for (Record settlement : settlements_) {
    const Record* agent = find(agents_, settlement.at("lca_idag"));
    if (agent == nullptr || !within(settlement, limits)) continue;
    settlement.insert(agent->begin(), agent->end());
    if (shape == Forma::Resumen) {
      rows.push_back(std::move(settlement));
    } else {
      addNotes(rows, settlement, shape);
    }
  }
  const auto before = [order = orderOf(shape, byDate)](const Record& a, const Record& b) {
    for (const std::string& name : order)
      if (const int sign = compared(a.at(name), b.at(name)); sign != 0) return sign < 0;
    return false;
  };
  std::sort(rows.begin(), rows.end(), before);
  Groups groups;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (row == 0 || before(rows[row - 1], rows[row])) groups.emplace_back();
    Record& shown = groups.back().emplace_back(rows[row]);
    // The series and the number of an invoice order the rows, and are not shown.
    if (shape == Forma::Factura) shown["fav_serie"] = shown["fav_numero"] = Variant();
  }
  return groups;
}

void RawTables::addNotes(std::vector<Record>& rows, const Record& settlement, Forma shape) {
  std::map<int, Record> invoices;
  for (const int note : notesOf_[settlement.at("lca_id").asLong()]) {
    Record record = settlement;
    record.insert(notes_.at(note).begin(), notes_.at(note).end());
    const Record* invoice = find(invoices_, record.at("cav_idfactura"));
    if (invoice == nullptr || find(customers_, invoice->at("fav_idcli")) == nullptr) continue;
    record.insert(invoice->begin(), invoice->end());
    record["factura"] = document(record.at("fav_serie"), record.at("fav_numero"));
    record["albaran"] = document(record.at("cav_serie"), record.at("cav_numero"));
    record["fav_bruto"] =
        sumOf(sumOf(record.at("fav_biva1"), record.at("fav_biva2")), record.at("fav_biva3"));

    const Discounts discounts{units(record.at("cav_dto1")), units(record.at("cav_dto2"))};
    Record& merged = invoices.try_emplace(record.at("fav_id").asLong(), record).first->second;
    for (const Record& line : linesOf_[note]) {
      const Line exact{units(line.at("lav_importe")), units(line.at("lav_comi"))};
      const Variant commission = ofCents(exactCommission(discounts, exact));
      Variant& sum = merged["comision"];
      sum = sum.isNull() ? commission : sumOf(sum, commission);
      if (shape != Forma::Albaran) continue;
      record["lav_des"] = line.at("lav_des");
      record["porcentaje"] = line.at("lav_comi");
      record["base"] = ofCents(exactNet(discounts, exact));
      record["comision"] = commission;
      rows.push_back(record);
    }
  }
  if (shape != Forma::Factura) return;
  for (auto& [id, invoice] : invoices) {
    finish(invoice);
    rows.push_back(std::move(invoice));
  }
}

}  // namespace korvantes::report
