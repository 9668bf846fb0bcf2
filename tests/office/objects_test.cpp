#include "outside/office/objects.h"

#include <gmock/gmock.h>

#include "runtime/ado/error.h"
#include "tests/support/current_desktop.h"

namespace korvantes::office {
namespace {

using testing::HasSubstr;

struct Numbered : Object {
  explicit Numbered(int value) : number(value) {}
  void set(std::string_view, const Argument&) override {}
  ado::Variant call(std::string_view, const std::vector<Argument>&) override { return number; }
  int number;
};

TEST(CreateObject, FindsTheLatestRegistrationWithoutRegardToCase) {
  support::CurrentDesktop desktop;
  objectsOf(desktop).add("BELTRIS.bSheets", [] { return std::make_unique<Numbered>(1); });
  objectsOf(desktop).add("marzenes.MZPrint", [] { return std::make_unique<Numbered>(2); });
  EXPECT_EQ(CreateObject("BELTRIS.BSHEETS")->call("n", {}), ado::Variant(1));
  objectsOf(desktop).add("Marzenes.mzprint", [] { return std::make_unique<Numbered>(3); });
  EXPECT_EQ(CreateObject("marzenes.MZPrint")->call("n", {}), ado::Variant(3));
}

TEST(CreateObject, SaysWhichComponentIsMissing) {
  support::CurrentDesktop desktop;
  objectsOf(desktop).add("vacio", [] { return std::unique_ptr<Object>(); });
  for (const auto& [name, words] : {std::pair{"marzenes.MZPrint", "No hay ningún componente"},
                                    std::pair{"vacio", "No se ha podido crear"}}) {
    try {
      CreateObject(name);
      ADD_FAILURE() << name;
    } catch (const ado::Error& error) {
      EXPECT_EQ(error.number(), 429);
      EXPECT_THAT(error.what(), HasSubstr(words));
      EXPECT_THAT(error.what(), HasSubstr(name));
    }
  }
}

}  // namespace
}  // namespace korvantes::office
