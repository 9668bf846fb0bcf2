#include "sample/documents.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "data/money_rule.h"
#include "sample/articles.h"
#include "sample/dice.h"
#include "sample/people.h"

namespace korvantes::sample {
namespace {

constexpr int kInvoices = 120;
constexpr int kOrders = 20;
constexpr ado::Date kFirstDay{2024, 1, 8};
constexpr ado::Date kLastDay{2026, 6, 30};

/// Cav_Situa. Only invoiced notes are settled.
constexpr int kToInvoice = 1, kInvoiced = 2, kCancelled = 3, kDeposit = 4;

// Receipts of older and of newer invoices, taken in turn.
constexpr std::string_view kOldReceipts[] = {"5", "55", "555", "58", "5", "5557", "55", "51",
                                             "5", "",   "555", "8",  "5", "55",   "56", "555"};
constexpr std::string_view kNewReceipts[] = {"5",    "1",   "55", "12", "5", "34",
                                             "1234", "555", "51", "17", "2", "185",
                                             "",     "55",  "67", "88", "3", "5"};

constexpr int kDiscounts1[] = {0, 0, 0, 500, 1000, 1250, 1500, 225};
constexpr int kDiscounts2[] = {0, 0, 0, 300, 500, 175};

/// The notes in which something is special, by key.
enum class Special {
  None,
  WorkedExample,
  NoLines,
  NullDiscount1,
  NullDiscount2,
  NullCommission,
  NullAmount,
  NegativeLine,
  AllNegative,
  EmptySeries,
  NullSeries,
  LongNumber,       // six digits, more than varchar(5) holds
  LostInvoice,      // its invoice was cleared away
  StrangeCustomer,  // its invoice names a customer that does not exist
  OtherAgent        // the other note of its invoice belongs to another agent
};

Special specialOf(int note) {
  static const std::map<int, Special> kSpecials = {
      {1, Special::WorkedExample},     {51, Special::LostInvoice},     {73, Special::NullDiscount1},
      {86, Special::LongNumber},       {89, Special::EmptySeries},     {90, Special::NullSeries},
      {95, Special::NoLines},          {96, Special::NullDiscount2},   {97, Special::NegativeLine},
      {105, Special::LostInvoice},     {110, Special::NullCommission}, {115, Special::AllNegative},
      {118, Special::StrangeCustomer}, {124, Special::NullAmount},     {126, Special::OtherAgent},
  };
  const auto found = kSpecials.find(note);
  return found == kSpecials.end() ? Special::None : found->second;
}

/// Days spread evenly, never on a Saturday or Sunday.
ado::Date dayOf(int invoice) {
  const long first = kFirstDay.serial();
  const long day = first + (kLastDay.serial() - first) * (invoice - 1) / (kInvoices - 1);
  const long weekday = (day - first) % 7;  // the first day is a Monday
  return ado::Date::fromSerial(weekday < 5 ? day : day - (weekday - 4));
}

SampleLine lineOf(Dice& dice) {
  const SampleArticle& article = dice.pick(sampleArticles());
  const int pieces = dice.between(1, article.most);
  return {std::int64_t{article.price} * pieces, article.commission,
          std::to_string(pieces) + " × " + article.text};
}

std::vector<SampleLine> linesOf(Dice& dice, int most) {
  std::vector<SampleLine> lines;
  for (int count = dice.between(1, most); count > 0; --count) lines.push_back(lineOf(dice));
  return lines;
}

void makeSpecial(SampleNote& note, SampleInvoice& invoice) {
  switch (specialOf(note.id)) {
    case Special::None:
      break;
    case Special::WorkedExample:
      note.discount1 = 1000;
      note.discount2 = 500;
      note.lines = {{100'500, 7500, "3 × Llavero imán"}, {200'500, 7500, "5 × Copia de llave"}};
      break;
    case Special::NoLines:
      note.lines.clear();
      break;
    case Special::NullDiscount1:
      note.discount1.reset();
      break;
    case Special::NullDiscount2:
      note.discount2.reset();
      break;
    case Special::NullCommission:
      note.lines.push_back({125'000, std::nullopt, "Portes"});
      break;
    case Special::NullAmount:
      note.lines.push_back({std::nullopt, 5000, "Muestra sin cargo"});
      break;
    case Special::NegativeLine:
      note.lines.push_back({-87'650, 5000, "Devolución de envases"});
      break;
    case Special::AllNegative:
      invoice.series = "R";
      for (SampleLine& line : note.lines) {
        line.amount = -*line.amount;
        line.text = "Abono: " + line.text;
      }
      break;
    case Special::EmptySeries:
      note.series = invoice.series = "";
      break;
    case Special::NullSeries:
      note.series.reset();
      break;
    case Special::LongNumber:
      note.number += 120'000;
      break;
    case Special::LostInvoice:
      note.state = kInvoiced;
      note.invoice = 9000 + note.id;
      break;
    case Special::StrangeCustomer:
      invoice.customerId = 9999;
      break;
    case Special::OtherAgent:
      note.agent = note.agent % 8 + 1;
      break;
  }
}

data::OptionalDecimal decimal(std::optional<std::int64_t> units, int scale) {
  if (!units) return {};
  return ado::Decimal(*units, scale);
}
data::OptionalDecimal money(std::optional<std::int64_t> units) {
  return decimal(units, ado::Decimal::kMoneyScale);
}
data::OptionalDecimal percent(std::optional<std::int64_t> hundredths) {
  return decimal(hundredths, 2);
}
data::OptionalDecimal thousandths(std::optional<std::int64_t> units) {
  return decimal(units, 3);
}

/// The amount of a note as an invoice carries it, in cents: the lines first, discounts after.
std::int64_t invoicedCents(const SampleNote& note) {
  std::int64_t sum = 0;
  for (const SampleLine& line : note.lines) sum += line.amount.value_or(0);
  return data::lineNet(money(sum), percent(note.discount1.value_or(0)),
                       percent(note.discount2.value_or(0)))
      ->units();
}

/// Makes invoices and notes in the order of their dates.
class DocumentMaker {
 public:
  SampleDocuments make() {
    for (int invoice = 1; invoice <= kInvoices; ++invoice) {
      makeInvoice(invoice);
      makeNote(true);
      if (invoice % 4 == 0) makeNote(true);
      if (invoice % 4 == 2) makeNote(false);
    }
    for (int order = 1; order <= kOrders; ++order)
      documents_.orders.push_back(
          {order, dice_.pick(kDiscounts1), dice_.pick(kDiscounts2), linesOf(dice_, 6)});
    makeOrdersSpecial();
    return std::move(documents_);
  }

 private:
  void makeInvoice(int id) {
    customer_ = &dice_.pick(sampleCustomers());
    SampleInvoice invoice;
    invoice.id = id;
    invoice.series = "A";
    invoice.date = dayOf(id);
    if (!documents_.invoices.empty() && invoice.date.year > documents_.invoices.back().date.year)
      numbers_.clear();
    invoice.customerId = customer_->id;
    invoice.customerCode = customer_->code;
    invoice.customer = customer_->name;
    if (id % 40 == 0) invoice.bases[2].reset();
    const auto at = static_cast<std::size_t>(id);
    invoice.receipts = invoice.date.year < 2026 ? kOldReceipts[at % std::size(kOldReceipts)]
                                                : kNewReceipts[at % std::size(kNewReceipts)];
    documents_.invoices.push_back(invoice);
  }

  void makeNote(bool invoiced) {
    SampleInvoice& invoice = documents_.invoices.back();
    SampleNote note;
    note.id = static_cast<int>(documents_.notes.size()) + 1;
    note.series = invoiced ? "AB" : "DP";
    note.number = 1000 + note.id;
    note.customer = customer_->name;
    note.agent = customer_->agent;
    note.discount1 = dice_.pick(kDiscounts1);
    note.discount2 = dice_.pick(kDiscounts2);
    note.lines = linesOf(dice_, 5);
    if (invoiced) {
      note.invoice = invoice.id;
      note.state = invoice.id % 31 == 0 ? kCancelled : kInvoiced;
    } else {
      if (note.id % 2 == 0) note.invoice = 0;
      note.state = note.id % 5 == 0 ? kDeposit : note.id % 4 == 0 ? kCancelled : kToInvoice;
    }
    // An unsettled note has Null or 0.
    if (note.id % 7 == 0) note.settlement = 0;
    makeSpecial(note, invoice);
    if (invoiced) {
      if (invoice.number == 0) invoice.number = ++numbers_[invoice.series];
      // The second note of an invoice is taxed at the second rate.
      const bool second =
          !documents_.notes.empty() && documents_.notes.back().invoice == invoice.id;
      invoice.bases[second ? 1 : 0] = invoicedCents(note);
    }
    documents_.notes.push_back(std::move(note));
  }

  void makeOrdersSpecial() {
    auto& orders = documents_.orders;
    orders[0] = {1, 1500, 225, {{999'900, 5000, ""}, {-125'000, 5000, ""}, {77'777, 4125, ""}}};
    orders[6].discount1.reset();
    orders[10].lines.clear();
    orders[13].lines.push_back({250'000, std::nullopt, ""});
    orders[13].lines.push_back({std::nullopt, 5000, ""});
  }

  Dice dice_{20240108};
  const SampleCustomer* customer_ = nullptr;
  std::map<std::string, int> numbers_;  ///< last invoice of the year, by series
  SampleDocuments documents_;
};

bool allReceipts(const SampleInvoice& invoice, std::string_view states) {
  std::string counted = invoice.receipts;
  std::erase(counted, '8');
  return !counted.empty() && counted.find_first_not_of(states) == std::string::npos;
}

}  // namespace

SampleDocuments makeDocuments() {
  return DocumentMaker().make();
}

std::int64_t commissionOf(const SampleNote& note) {
  std::int64_t sum = 0;
  for (const SampleLine& line : note.lines)
    sum += data::lineCommission(money(line.amount), percent(note.discount1),
                                percent(note.discount2), thousandths(line.commission))
               .units();
  return sum;
}

bool isCollected(const SampleInvoice& invoice) {
  return allReceipts(invoice, "5");
}
bool isPending(const SampleInvoice& invoice) {
  return allReceipts(invoice, "1234");
}

}  // namespace korvantes::sample
