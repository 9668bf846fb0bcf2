// Random documents through a real database file: the commission that the component gives, against
// the computation in exact_commission.h. tests/report compares the reports' statements with it.
//
//   KORVANTES_PROPERTY_LINES   how many lines (600; 100000 takes a while)
//   KORVANTES_PROPERTY_SEED    seed of another run
#include <cstdlib>
#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

#include "component/KORVAN.h"
#include "data/commission_rule.h"
#include "data/money_rule.h"
#include "data/money_rule_sql.h"
#include "runtime/ado/decimal.h"
#include "tests/component/exact_commission.h"
#include "tests/support/temporary_database.h"

namespace korvantes {
namespace {

using ado::Decimal;

struct Document {
  Discounts discounts;
  std::vector<Line> lines;
};

/// Documents that meet half cents at every stage far more often than chance would have it.
class Generator {
 public:
  explicit Generator(std::uint64_t seed) : random_(seed) {}

  std::vector<Document> documents(std::size_t lines) {
    std::vector<Document> result;
    while (lines > 0) {
      Document& document = result.emplace_back();
      document.discounts = {discount(), discount()};
      for (std::int64_t count = upTo(8); count > 0 && lines > 0; --count, --lines)
        document.lines.push_back({amount(), commission()});
    }
    return result;
  }

 private:
  std::int64_t upTo(std::int64_t largest) {
    return static_cast<std::int64_t>(random_() % (static_cast<std::uint64_t>(largest) + 1));
  }
  bool oneIn(std::int64_t count) { return upTo(count - 1) == 0; }
  template <std::size_t size>
  std::int64_t oneOf(const std::int64_t (&values)[size]) {
    return values[upTo(size - 1)];
  }

  std::optional<std::int64_t> discount() {
    if (oneIn(20)) return std::nullopt;
    if (oneIn(2)) return oneOf({0, 250, 500, 1000, 1250, 3000, 5000, 7000, 10000});
    return upTo(10000);
  }

  std::optional<std::int64_t> commission() {
    if (oneIn(20)) return std::nullopt;
    if (oneIn(2)) return oneOf({0, 500, 2500, 7500, 10000, 12500, 30000, 50000, 99999});
    return upTo(99999);
  }

  std::optional<std::int64_t> amount() {
    if (oneIn(25)) return std::nullopt;
    constexpr std::int64_t kUnit = 10000;
    std::int64_t units = upTo(oneOf({10, 1000, 100000, 1000000000}) * kUnit);
    switch (upTo(4)) {
      case 0:  // whole
        units -= units % kUnit;
        break;
      case 1:  // cents, odd or ending in 5: half a cent at 10 or at 50 percent
        units = units - units % 1000 + oneOf({100, 300, 500, 700, 900});
        break;
      case 2:  // half a cent in the amount itself
        units = units - units % 100 + 50;
        break;
      case 3:  // just below half a cent at 10 percent: rounded to money first it is half
        units = units - units % 1000 + oneOf({496, 504, 495, 505});
        break;
      default:
        break;
    }
    return oneIn(4) ? -units : units;
  }

  std::mt19937_64 random_;
};

std::uint64_t setting(const char* name, std::uint64_t usual) {
  const char* text = std::getenv(name);
  return text == nullptr ? usual : std::stoull(text);
}

std::string literal(std::optional<std::int64_t> units, int scale) {
  return units ? Decimal(*units, scale).text() : "Null";
}

data::OptionalDecimal decimal(std::optional<std::int64_t> units, int scale) {
  if (!units) return {};
  return Decimal(*units, scale);
}

/// Stores the documents both as delivery notes and as orders, numbered from 1. One row at a time:
/// the statements only differ in their literals, so that each is compiled once.
void store(ado::Connection& connection, const std::vector<Document>& documents) {
  connection.BeginTrans();
  int line = 0;
  for (std::size_t index = 0; index < documents.size(); ++index) {
    const Document& document = documents[index];
    const std::string key = std::to_string(index + 1);
    const std::string header = " VALUES (" + key + ", " + literal(document.discounts.first, 2) +
                               ", " + literal(document.discounts.second, 2) + ")";
    connection.Execute("INSERT INTO Cav (Cav_Id, Cav_Dto1, Cav_DTO2)" + header);
    connection.Execute("INSERT INTO PedCa (PedCa_Id, PedCa_Dto1, PEDCA_DTO2)" + header);
    for (const Line& each : document.lines) {
      const std::string row = " VALUES (" + std::to_string(++line) + ", " + key + ", " +
                              literal(each.amount, 4) + ", " + literal(each.commission, 3) + ")";
      connection.Execute("INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi)" + row);
      connection.Execute("INSERT INTO PedLi (LiPed_Id, PedLi_IdPedca, PedLi_Importe, PedLi_Comi)" +
                         row);
    }
  }
  connection.CommitTrans();
}

/// The amount of each note, by the statements and by the exact rule.
void expectSameNoteNets(ado::Connection& connection, const std::vector<Document>& documents) {
  const ado::Recordset rows =
      connection.Execute("SELECT Cav_Id, " + std::string(data::sql::kNoteNet) +
                         "FROM laV where laV_Idcav= cav_id) as Importe FROM Cav ORDER BY Cav_Id");
  for (std::size_t index = 0; index < documents.size(); ++index) {
    const auto& [discounts, lines] = documents[index];
    data::OptionalDecimal sum;
    for (const Line& line : lines)
      if (line.amount) sum = sum.value_or(Decimal(0, 4)) + Decimal(*line.amount, 4);
    const data::OptionalDecimal net =
        data::noteNet(sum, decimal(discounts.first, 2), decimal(discounts.second, 2));
    const ado::Variant& stored = rows.cell(index, 1);
    ASSERT_EQ(stored.isNull(), !net) << "note " << index + 1;
    if (net) {
      EXPECT_EQ(stored.decimal(), *net) << "note " << index + 1;
    }
  }
}

TEST(CommissionProperty, EveryWayToTheCommissionEqualsTheExactComputation) {
  const std::uint64_t seed = setting("KORVANTES_PROPERTY_SEED", 20261124);
  SCOPED_TRACE("KORVANTES_PROPERTY_SEED=" + std::to_string(seed));
  const std::vector<Document> documents =
      Generator(seed).documents(setting("KORVANTES_PROPERTY_LINES", 600));
  support::TemporaryDatabase database;
  store(*database.connection(), documents);
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));

  expectSameNoteNets(*database.connection(), documents);
  std::int32_t row = 0, key = 0;
  for (const auto& [discounts, lines] : documents) {
    std::int64_t cents = 0;
    SCOPED_TRACE("document " + std::to_string(++key));
    for (const Line& line : lines) {
      SCOPED_TRACE("line " + std::to_string(++row));
      const std::int64_t commission = exactCommission(discounts, line);
      ASSERT_EQ(data::lineCommission(decimal(line.amount, 4), decimal(discounts.first, 2),
                                     decimal(discounts.second, 2), decimal(line.commission, 3)),
                Decimal(commission, 2));
      cents += commission;
      for (const std::int16_t origin : {data::kPedido, data::kAlbaran})
        ASSERT_EQ(component->msComisionAgente(origin, 0, row), Decimal(commission, 2).toDouble());
    }
    for (const std::int16_t origin : {data::kPedido, data::kAlbaran})
      ASSERT_EQ(component->msComisionAgente(origin, key, 0), Decimal(cents, 2).toDouble());
  }
}

}  // namespace
}  // namespace korvantes
