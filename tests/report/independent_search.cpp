#include "tests/report/independent_search.h"

#include <algorithm>

#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"
#include "tests/component/exact_commission.h"

namespace korvantes::report {

namespace {

using ado::Decimal;
using ado::Variant;
using Record = std::map<std::string, Variant>;
using Names = std::vector<std::string>;

const Names kSummary{"lca_id",  "age_nom",       "lca_fecha", "lca_base",
                     "lca_iva", "lca_retencion", "lca_total"};
const Names kOfLine{"fav_serie",     "fav_numero", "fav_clicod", "fav_clinom",
                    "age_id",        "age_nif",    "lca_base",   "lca_iva",
                    "lca_retencion", "lca_total",  "fav_bruto",  "albaran",
                    "lav_des",       "base",       "porcentaje", "comision"};
const Names kOfInvoice{"fav_bruto",  "comision", "porcentaje",    "age_id",
                       "fav_clicod", "lca_base", "fav_serie",     "fav_numero",
                       "age_nif",    "lca_iva",  "lca_retencion", "lca_total"};

Names columnsOf(Forma shape, bool byDate) {
  if (shape == Forma::Resumen) return kSummary;
  Names names{"fav_id", "lca_id", "age_nom", "lca_fecha"};
  for (const char* name : byDate ? std::array{"factura", "fav_fecha", "fav_clinom"}
                                 : std::array{"fav_clinom", "factura", "fav_fecha"})
    names.emplace_back(name);
  const Names& rest = shape == Forma::Factura ? kOfInvoice : kOfLine;
  names.insert(names.end(), rest.begin(), rest.end());
  return names;
}

Names orderOf(Forma shape, bool byDate) {
  if (shape == Forma::Resumen) return {"lca_idag", "lca_fecha"};
  if (byDate) return {"age_nom", "lca_fecha", "fav_fecha", "fav_serie", "fav_numero"};
  return {"age_nom", "lca_fecha", "fav_clinom", "fav_fecha", "fav_serie", "fav_numero"};
}

std::string lowered(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(c));
  return text;
}

std::string valueText(const Variant& value) {
  switch (value.kind()) {
    case Variant::Kind::Null:
      return "Null";
    case Variant::Kind::Text:
      return value.text();
    case Variant::Kind::Date:
      return value.date().iso();
    case Variant::Kind::Decimal:
      return value.decimal().rescaled(4).text();
    default:
      return ado::decimalFromDouble(value.asDouble(), 4).text();
  }
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
  std::vector<Record> records(rows.RecordCount());
  for (std::size_t row = 0; row < records.size(); ++row)
    for (std::size_t field = 0; field < rows.definitions().size(); ++field)
      records[row][lowered(rows.definitions()[field].name)] = rows.cell(row, field);
  return records;
}

std::map<int, Record> byId(std::vector<Record> records, const std::string& key) {
  std::map<int, Record> found;
  for (Record& record : records) found[record.at(key).asLong()] = std::move(record);
  return found;
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

Variant trimmed(const Variant& value) {
  if (value.isNull()) return value;
  std::string text = value.text();
  text.erase(0, text.find_first_not_of(' '));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

Variant ofCents(std::int64_t cents) {
  return Decimal::money(cents * 100);
}

/// Hundredths of a percent, half away from zero.
Variant percentage(std::int64_t commissionCents, const Variant& gross) {
  if (gross.isNull() || gross.decimal().units() == 0) return {};
  __extension__ using Wide = __int128;
  const Wide number = Wide{commissionCents} * 100 * 10000;
  const Wide divisor = gross.decimal().units();
  const bool negative = (number < 0) != (divisor < 0);
  const Wide top = number < 0 ? -number : number;
  const Wide bottom = divisor < 0 ? -divisor : divisor;
  const auto rounded = static_cast<std::int64_t>((2 * top + bottom) / (2 * bottom));
  return Decimal(negative ? -rounded : rounded, 2);
}

}  // namespace

std::string textOf(const ado::Recordset& rows, std::size_t row) {
  std::string text;
  for (std::size_t field = 0; field < rows.definitions().size(); ++field)
    text += lowered(rows.definitions()[field].name) + "=" + valueText(rows.cell(row, field)) + " ";
  return text;
}

struct RawTables::Row {
  Row(const Record& record, const Names& order, const Names& columns) {
    for (const std::string& name : order) key.push_back(record.at(name));
    for (const std::string& name : columns) text += name + "=" + valueText(record.at(name)) + " ";
  }
  int compare(const Row& other) const {
    for (std::size_t i = 0; i < key.size(); ++i)
      if (const int order = compared(key[i], other.key[i]); order != 0) return order;
    return 0;
  }
  std::vector<Variant> key;
  std::string text;
};

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

bool RawTables::within(const Record& settlement, const Limits& limits) {
  if (limits.agent != 0 && settlement.at("lca_idag").asLong() != limits.agent) return false;
  if (!limits.from && !limits.to) return true;
  const Variant& date = settlement.at("lca_fecha");
  if (date.isNull()) return false;
  return (!limits.from || date.date() >= *limits.from) && (!limits.to || date.date() <= *limits.to);
}

std::int64_t RawTables::totalCents(const Limits& limits) const {
  std::int64_t total = 0;
  for (const Record& settlement : settlements_)
    if (within(settlement, limits)) total += units(settlement.at("lca_base")).value_or(0) / 100;
  return total;
}

Groups RawTables::search(Forma shape, bool byDate, const Limits& limits) const {
  std::vector<Row> rows;
  for (const Record& settlement : settlements_) {
    const auto agent = agents_.find(settlement.at("lca_idag").asLong());
    if (!within(settlement, limits) || agent == agents_.end()) continue;
    Record head = settlement;
    head.insert(agent->second.begin(), agent->second.end());
    if (shape == Forma::Resumen) {
      rows.emplace_back(head, orderOf(shape, byDate), columnsOf(shape, byDate));
    } else {
      addNotes(rows, head, shape, byDate);
    }
  }
  std::stable_sort(rows.begin(), rows.end(),
                   [](const Row& a, const Row& b) { return a.compare(b) < 0; });
  Groups groups;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i == 0 || rows[i - 1].compare(rows[i]) != 0) groups.emplace_back();
    groups.back().push_back(std::move(rows[i].text));
  }
  return groups;
}

void RawTables::addNotes(std::vector<Row>& rows, const Record& head, Forma shape,
                         bool byDate) const {
  static const std::vector<int> kNone;
  static const std::vector<Record> kNoLines;
  const auto found = notesOf_.find(head.at("lca_id").asLong());
  std::vector<Record> notes;
  for (const int note : found == notesOf_.end() ? kNone : found->second) {
    Record record = head;
    record.insert(notes_.at(note).begin(), notes_.at(note).end());
    const Variant& invoiceId = record.at("cav_idfactura");
    const auto invoice = invoices_.find(invoiceId.isNull() ? 0 : invoiceId.asLong());
    if (invoice == invoices_.end()) continue;
    record.insert(invoice->second.begin(), invoice->second.end());
    const Variant& customer = record.at("fav_idcli");
    if (customer.isNull() || !customers_.contains(customer.asLong())) continue;
    record["factura"] = document(record.at("fav_serie"), record.at("fav_numero"));
    record["albaran"] = document(record.at("cav_serie"), record.at("cav_numero"));
    record["fav_bruto"] =
        sumOf(sumOf(record.at("fav_biva1"), record.at("fav_biva2")), record.at("fav_biva3"));

    const Discounts discounts{units(record.at("cav_dto1")), units(record.at("cav_dto2"))};
    const auto lines = linesOf_.find(note);
    std::int64_t commission = 0;
    for (const Record& line : lines == linesOf_.end() ? kNoLines : lines->second) {
      const Line exact{units(line.at("lav_importe")), units(line.at("lav_comi"))};
      commission += exactCommission(discounts, exact);
      if (shape != Forma::Albaran) continue;
      record["lav_des"] = line.at("lav_des");
      record["porcentaje"] = line.at("lav_comi");
      record["base"] = ofCents(exactNet(discounts, exact));
      record["comision"] = ofCents(exactCommission(discounts, exact));
      rows.emplace_back(record, orderOf(shape, byDate), columnsOf(shape, byDate));
    }
    record["comision"] = lines == linesOf_.end() ? Variant() : ofCents(commission);
    notes.push_back(std::move(record));
  }
  if (shape == Forma::Factura) addInvoices(rows, notes, byDate);
}

void RawTables::addInvoices(std::vector<Row>& rows, const std::vector<Record>& notes,
                            bool byDate) const {
  std::map<int, Record> invoices;
  for (const Record& note : notes) {
    const auto [invoice, isNew] = invoices.try_emplace(note.at("fav_id").asLong(), note);
    Variant& commission = invoice->second["comision"];
    if (isNew) continue;
    const Variant& more = note.at("comision");
    commission = commission.isNull() ? more : more.isNull() ? commission : sumOf(commission, more);
  }
  for (auto& [id, invoice] : invoices) {
    const Variant& commission = invoice.at("comision");
    invoice["porcentaje"] = commission.isNull() ? Variant()
                                                : percentage(commission.decimal().units() / 100,
                                                             invoice.at("fav_bruto"));
    for (const char* name : {"factura", "fav_clinom"}) invoice[name] = trimmed(invoice.at(name));
    Variant& taxNumber = invoice["age_nif"];
    if (!taxNumber.isNull()) taxNumber = std::string(ado::firstCharacters(taxNumber.text(), 20));
    Row row(invoice, orderOf(Forma::Factura, byDate), {});
    // The series and the number of the invoice order the rows, and are not shown.
    invoice["fav_serie"] = invoice["fav_numero"] = Variant();
    row.text = Row(invoice, {}, columnsOf(Forma::Factura, byDate)).text;
    rows.push_back(std::move(row));
  }
}

}  // namespace korvantes::report
