#include "component/KORVAN.h"

#include <cstring>
#include <gmock/gmock.h>

#include "component/mdoKORVANTES.h"
#include "data/commission_rule.h"
#include "scripts/headless_desktop.h"
#include "scripts/key_names.h"
#include "tests/support/recording_connection.h"
#include "tests/support/screen_world.h"
#include "tests/support/temporary_database.h"

namespace korvantes {
namespace {

using ado::Decimal;
using support::RecordingConnection;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::ThrowsMessage;

struct KorvanTest : testing::Test {
  KorvanTest() : former(screen::Desktop::makeCurrent(&desktop)) {}
  ~KorvanTest() override { screen::Desktop::makeCurrent(former); }

  static std::shared_ptr<plindor::BaseDatos> serviceOn(
      const std::shared_ptr<RecordingConnection>& connection) {
    return std::make_shared<plindor::BaseDatos>(connection);
  }

  scripts::HeadlessDesktop desktop;
  screen::Desktop* former;
  std::shared_ptr<RecordingConnection> one = std::make_shared<RecordingConnection>();
  std::shared_ptr<RecordingConnection> two = std::make_shared<RecordingConnection>();
};

TEST_F(KorvanTest, SaysWhatIsMissingBeforeTheDatabaseServiceIsSet) {
  if (!mdoKORVANTES::oComponente()) {
    EXPECT_THAT([] { mdoKORVANTES::MyBd(); },
                ThrowsMessage<ado::Error>(HasSubstr("No se ha creado")));
  }
  const auto component = KORVAN::Create();
  EXPECT_EQ(component->MyBd(), nullptr);
  EXPECT_THAT([&] { component->msComisionAgente(3, 1, 0); },
              ThrowsMessage<ado::Error>(HasSubstr("MyBd")));
  EXPECT_THAT([&] { component->jShowNewLiqui(); }, ThrowsMessage<ado::Error>(HasSubstr("MyBd")));
  EXPECT_THAT(desktop.forms(), IsEmpty());
}

/// Place of a virtual operation in the table through which a host calls it, from 0.
template <class Operation>
std::size_t slotOf(Operation operation) {
  std::size_t offset = 0;
  static_assert(sizeof operation >= sizeof offset);
  std::memcpy(&offset, &operation, sizeof offset);
  return offset / sizeof(void*);
}

TEST_F(KorvanTest, TheOperationsKeepTheirSlots) {
  using Set = void (KORVAN::*)(std::shared_ptr<plindor::BaseDatos>);
  using Get = std::shared_ptr<plindor::BaseDatos> (KORVAN::*)() const;
  EXPECT_THAT((std::vector{slotOf<Set>(&KORVAN::MyBd), slotOf<Get>(&KORVAN::MyBd),
                           slotOf(&KORVAN::jShow), slotOf(&KORVAN::jShowNewLiqui),
                           slotOf(&KORVAN::jShowInfLiqui), slotOf(&KORVAN::msComisionAgente)}),
              ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(KorvanTest, TheLatestObjectServesEveryScreen) {
  const auto first = KORVAN::Create();
  first->MyBd(serviceOn(one));
  const auto second = KORVAN::Create();
  second->MyBd(serviceOn(two));
  EXPECT_EQ(mdoKORVANTES::oComponente(), second);

  desktop.whileShown = [&](screen::Form& form) {
    desktop.user().stroke(*scripts::keyNamed("F1"));
    desktop.user().settle();
    form.Unload();
  };
  two->answer(support::resultOf({"k", "AGE_ID", "AGE_NOM"}, {}));
  first->jShowNewLiqui();
  EXPECT_THAT(one->calls, IsEmpty());
  EXPECT_THAT(two->calls, Not(IsEmpty()));

  // The function, though, works on the service of its own object.
  one->answer(support::resultOf({"Comision"}, {}));
  first->msComisionAgente(3, 1, 0);
  EXPECT_EQ(one->calls.size(), 1U);
}

/// A database of two agents that remembers the statements it was asked.
struct Office {
  Office() {
    for (const char* agent : {"1,'Ana'", "2,'Blas'"})
      base.connection()->Execute("INSERT INTO Age (AGE_ID,AGE_NOM) VALUES (" + std::string(agent) +
                                 ")");
  }
  std::shared_ptr<plindor::BaseDatos> service() {
    const auto link = std::make_shared<support::FaultyConnection>(base.connection());
    link->onCall = [this](std::string_view statement) { asked.emplace_back(statement); };
    return std::make_shared<plindor::BaseDatos>(link);
  }

  support::TemporaryDatabase base;
  std::vector<std::string> asked;
};

TEST_F(KorvanTest, AnOpenScreenKeepsTheServiceOfItsSearchDialogAndAsksTheNewOneForAllElse) {
  struct Case {
    void (*show)(KORVAN&);
    const char* button;     ///< what the user clicks after choosing the agent
    const char* statement;  ///< the first one that the new service gets
  };
  const Case cases[] = {
      {[](KORVAN& component) { component.jShow(); }, nullptr, "select AGE_IMG"},
      {[](KORVAN& component) { component.jShowNewLiqui(); }, nullptr, "SELECT Age_ID"},
      {[](KORVAN& component) { component.jShowInfLiqui(); }, "cmdBuscar", "Select Age_ID"},
  };
  desktop.onList = [](const screen::ListDialog&) {
    return scripts::Reply<std::optional<std::size_t>>{1};
  };
  Office earlier, later;
  for (const Case& test : cases) {
    const auto component = KORVAN::Create();
    component->MyBd(earlier.service());
    const std::weak_ptr<plindor::BaseDatos> replaced = component->MyBd();
    desktop.whileShown = [&](screen::Form& form) {
      earlier.asked.clear();
      later.asked.clear();
      component->MyBd(later.service());
      desktop.user().stroke(*scripts::keyNamed("F1"));
      if (test.button != nullptr) desktop.user().click(*form.findControl(test.button));
      EXPECT_THAT(earlier.asked, ElementsAre(HasSubstr(" ORDER BY "))) << form.name();
      ASSERT_THAT(later.asked, Not(IsEmpty())) << form.name();
      EXPECT_THAT(later.asked.front(), testing::StartsWith(test.statement)) << form.name();
      form.Unload();
    };
    test.show(*component);
    EXPECT_TRUE(replaced.expired());
  }
}

TEST_F(KorvanTest, EachShowOpensAFreshFormWithTheEnterMarkerAndDropsIt) {
  const auto component = KORVAN::Create();
  component->MyBd(serviceOn(one));
  std::vector<std::string> seen;
  desktop.whileShown = [&](screen::Form& form) {
    auto* remarks = dynamic_cast<screen::TextBox*>(form.findControl("Text1(7)"));
    ASSERT_NE(remarks, nullptr);
    seen.push_back(form.name() + " " + form.Tag() + " [" + remarks->Text() + "]");
    remarks->Text = "typed into this one";
    form.Unload();
  };
  component->jShowNewLiqui();
  component->jShowNewLiqui();
  EXPECT_THAT(seen, ElementsAre("frmNewLiquidAgentes e []", "frmNewLiquidAgentes e []"));
  EXPECT_THAT(desktop.forms(), IsEmpty());
}

TEST_F(KorvanTest, AsksForTheLinesOfADocumentAndAddsThemUp) {
  const auto component = KORVAN::Create();
  component->MyBd(serviceOn(one));
  one->answer(support::resultOf({"Comision"}, {Decimal::money(6400), Decimal::money(12900)}));
  EXPECT_DOUBLE_EQ(component->msComisionAgente(3, 7, 0), 1.93);
  EXPECT_THAT(one->calls.at(0),
              "SELECT ISNULL(ROUND(CAST( (ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * "
              "Cav_Dto1 / 100) AS Money),2) as money),2)- ROUND(CAST(ROUND(CAST(Lav_Importe - "
              "ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as money),2) * Cav_DTO2 /100 "
              "AS MONEY),2))/100 * Lav_Comi AS Money),2),0) AS Comision FROM Lav INNER JOIN Cav ON "
              "Cav_Id = Lav_IdCav WHERE Cav_id = 7");

  EXPECT_THAT(data::sentenciaComision(3, 7, -9),
              EndsWith("FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav  WHERE Lav_Id = -9"));
  EXPECT_THAT(data::sentenciaComision(2, -2147483647 - 1, 0),
              EndsWith("= PedLi_IdPedca WHERE PedCa_id = -2147483648"));
  EXPECT_THAT(data::sentenciaComision(2, 7, 2147483647),
              EndsWith("= PedLi_IdPedca  WHERE LiPed_Id = 2147483647"));
  EXPECT_THAT(data::sentenciaComision(2, 1, 0), Not(HasSubstr("Lav")));
  for (const std::int16_t origin : std::initializer_list<std::int16_t>{0, 1, 4, 5, -3})
    EXPECT_EQ(data::sentenciaComision(origin, 1, 0), "");
}

}  // namespace
}  // namespace korvantes
