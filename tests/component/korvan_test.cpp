#include "component/KORVAN.h"

#include <cstring>
#include <gmock/gmock.h>
#include <set>

#include "tests/support/screen_world.h"

namespace korvantes {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::ThrowsMessage;

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

struct KorvanTest : testing::Test {
  support::CurrentDesktop desktop;
  Office earlier, later;
};

void (*const kShows[])(KORVAN&) = {[](KORVAN& component) { component.jShow(); },
                                   [](KORVAN& component) { component.jShowNewLiqui(); },
                                   [](KORVAN& component) { component.jShowInfLiqui(); }};

TEST_F(KorvanTest, SaysWhatIsMissingBeforeTheDatabaseServiceIsSet) {
  const auto component = KORVAN::Create();
  EXPECT_EQ(component->MyBd(), nullptr);
  EXPECT_THAT([&] { component->msComisionAgente(3, 1, 0); },
              ThrowsMessage<ado::Error>(HasSubstr("MyBd")));
  for (const auto show : kShows)
    EXPECT_THAT([&] { show(*component); }, ThrowsMessage<ado::Error>(HasSubstr("MyBd")));
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
  first->MyBd(earlier.service());
  const auto second = KORVAN::Create();
  second->MyBd(later.service());
  desktop.whileShown = [&](screen::Form& form) {
    desktop.user().stroke(*scripts::keyNamed("F1"));
    form.Unload();
  };
  for (const auto show : kShows) {
    later.asked.clear();
    show(*first);
    EXPECT_THAT(later.asked, Not(IsEmpty()));
  }
  EXPECT_THAT(earlier.asked, IsEmpty());
  // The function, though, works on the service of its own object.
  first->msComisionAgente(3, 1, 0);
  EXPECT_EQ(earlier.asked.size(), 1U);
}

TEST_F(KorvanTest, AnOpenScreenKeepsTheServiceOfItsSearchDialogAndAsksTheNewOneForAllElse) {
  // The first statement that the new service gets for each screen.
  const char* const statements[] = {"select AGE_IMG", "SELECT Age_ID", "Select Age_ID"};
  desktop.onList = [](const screen::ListDialog&) {
    return scripts::Reply<std::optional<std::size_t>>{1};
  };
  for (std::size_t screen = 0; screen < std::size(kShows); ++screen) {
    const auto component = KORVAN::Create();
    component->MyBd(earlier.service());
    const std::weak_ptr<plindor::BaseDatos> replaced = component->MyBd();
    desktop.whileShown = [&](screen::Form& form) {
      earlier.asked.clear();
      later.asked.clear();
      component->MyBd(later.service());
      desktop.user().stroke(*scripts::keyNamed("F1"));
      if (auto* search = form.findControl("cmdBuscar")) desktop.user().click(*search);
      EXPECT_THAT(earlier.asked, ElementsAre(HasSubstr(" ORDER BY "))) << form.name();
      ASSERT_THAT(later.asked, Not(IsEmpty())) << form.name();
      EXPECT_THAT(later.asked.front(), testing::StartsWith(statements[screen])) << form.name();
      form.Unload();
    };
    kShows[screen](*component);
    EXPECT_TRUE(replaced.expired());
  }
}

TEST_F(KorvanTest, EachShowOpensAFreshFormWhoseControlsLieWithinIt) {
  const auto component = KORVAN::Create();
  component->MyBd(later.service());
  using Kind = screen::Control::Kind;
  int shown = 0;
  desktop.whileShown = [&](screen::Form& form) {
    ++shown;
    EXPECT_EQ(form.Tag(), "e");
    std::set<int> places;
    for (screen::Control* control : form.controls()) {
      if (control->kind() == Kind::CommonDialog) continue;
      const screen::Frame* frame = control->container();
      EXPECT_LE(control->Left() + control->Width(), frame ? frame->Width() : form.Width());
      EXPECT_LE(control->Top() + control->Height(), frame ? frame->Height() : form.Height());
      if (control->kind() == Kind::Image || control->kind() == Kind::Shape) continue;
      EXPECT_TRUE(places.insert(control->TabIndex()).second) << control->identity();
    }
    auto* box = dynamic_cast<screen::TextBox*>(form.findControl("Text1(0)"));
    if (box == nullptr) return form.Unload();
    EXPECT_EQ(box->Text(), "");
    box->Text = "typed into this one";
    form.Unload();
  };
  for (int times = 0; times < 2; ++times)
    for (const auto show : kShows) show(*component);
  EXPECT_EQ(shown, 6);
  EXPECT_THAT(desktop.forms(), IsEmpty());
}

}  // namespace
}  // namespace korvantes
