#include <stdexcept>

#include "runtime/screen/conversions.h"
#include "scripts/headless_desktop.h"
#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

using testing::Contains;

TEST(Controls, AreFoundByTheirIdentityAndArraysMayHaveGaps) {
  SampleForm form;
  ControlArray<TextBox> fields(form, "txtFields");
  fields.add(0);
  fields.add(7);
  EXPECT_TRUE(fields.contains(7));
  EXPECT_THROW(fields(3), std::out_of_range);
  EXPECT_THROW(fields.add(7), std::logic_error);
  EXPECT_EQ(form.findControl("TXTFIELDS(7)"), &fields(7));
  EXPECT_EQ(form.findControl("txtFields"), nullptr);
  EXPECT_EQ(form.findControl("SAVE"), &form.save);
}

TEST(Controls, RaiseEventsInsideTheProgramsOwnAssignments) {
  SampleForm form;
  form.Text1(0).Text = "x";
  form.Text1(0).Text = "x";
  form.check.Value = 1;
  form.first.Value = true;
  form.second.Value = true;
  EXPECT_FALSE(form.first.Value());
  EXPECT_EQ(form.taken(), (Log{"Text1(0) Change x", "check Click", "first Click", "second Click"}));
  // Entries of a combo box; those that do not exist are refused.
  ComboBox& combo = form.fixedList;
  combo.ListIndex = 1;
  EXPECT_EQ(combo.Text(), "España");
  EXPECT_THROW(combo.ListIndex = 9, std::out_of_range);
  EXPECT_THROW(combo.Text = "Francia", std::invalid_argument);
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.Text(), "España");
  combo.Text = "Alemania";
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_EQ(form.taken(), (Log{"fixedList Click", "fixedList Click"}));
  combo.Clear();
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "");
  EXPECT_EQ(combo.ListCount(), 0);
  EXPECT_EQ(form.taken(), Log{});
}

/// A face that counts what it hears.
struct Face : FormObserver {
  void propertyChanged(Control* control, const PropertyBase& property) override {
    heard.push_back((control != nullptr ? control->identity() : "form") + "." +
                    std::string(property.name()));
  }
  void rowsChanged(Control& control) override { heard.push_back(control.identity() + " rows"); }
  void activeControlChanged() override { heard.push_back("active"); }
  void unloaded() override { heard.push_back("unloaded"); }
  Log heard;
};

/// On the stage whose windows leave the place of the observer free.
struct Faces : testing::Test, protected Played {
  Faces() : Played(std::make_unique<scripts::HeadlessDesktop>()) { form.observe(&face); }
  Face face;
};

TEST_F(Faces, HearOfRealChangesAlone) {
  form.Caption = "Muestra";
  form.Caption = "Otra";
  form.save.Enabled = true;
  form.save.Enabled = false;
  form.fixedList.AddItem("x");
  EXPECT_EQ(face.heard,
            (Log{"form.Caption", "save.Enabled", "fixedList.ListCount", "fixedList rows"}));
  play([&] {
    face.heard.clear();
    user.moveFocus(form.list);
  });
  EXPECT_EQ(face.heard, (Log{"active", "unloaded"}));
}

TEST_F(Faces, GridSharesItsCurrentRowWithItsRecordset) {
  ado::Recordset rows;
  rows.Fields().Append("Id", ado::FieldType::Integer);
  rows.Fields().Append("Base", ado::FieldType::Double);
  rows.Open();
  for (const int id : {1, 2, 3}) {
    rows.AddNew();
    rows.Collect("Id", id);
    if (id != 2) rows.Collect("Base", id * 1000.5);
    rows.Update();
  }
  rows.MoveFirst();
  play([&] {
    form.grid.DataSource(rows);
    form.grid.Columns(1).NumberFormat = "#,##0.00";
    EXPECT_EQ(form.grid.cellText(0, 1, currentRegional()), "1.000,50");
    EXPECT_EQ(form.grid.cellText(1, 1, currentRegional()), "");
    user.selectRow(form.grid, 2);
    user.selectRow(form.grid, 3);  // there is none
    EXPECT_EQ(rows.position(), 2U);
    face.heard.clear();
    form.save.Click = [&] { rows.MoveFirst(); };
    user.click(form.save);
    EXPECT_EQ(form.grid.currentRow(), 0U);
    EXPECT_THAT(face.heard, Contains("grid rows"));
    user.pressCellButton(form.grid, 1);  // has no button yet
    form.grid.Columns(1).Button = true;
    user.pressCellButton(form.grid, 1);
    rows.MoveLast();
    rows.MoveNext();
    user.pressCellButton(form.grid, 1);
    EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "grid ButtonClick 1"), 1);
    form.grid.DataSource(ado::Recordset());
    EXPECT_EQ(form.grid.ColumnCount(), 0U);
  });
}

TEST(HeadlessDesktop, TakesDefaultsWhereNobodyAnswers) {
  scripts::HeadlessDesktop desktop;
  Desktop::makeCurrent(&desktop);
  EXPECT_EQ(MsgBox("¿Seguro?", style::YesNo), Answer::Yes);
  EXPECT_EQ(MsgBox("¿Seguro?", style::YesNo + style::DefaultSecond), Answer::No);
  EXPECT_EQ(MsgBox("Hecho", style::Information), Answer::Ok);
  EXPECT_FALSE(desktop.chooseFromList({}) || desktop.chooseFile({}));
  desktop.onList = [](const ListDialog&) { return std::optional<std::size_t>(2); };
  EXPECT_THROW(desktop.chooseFromList({}), std::out_of_range);
  Desktop::makeCurrent(nullptr);
  EXPECT_THROW(MsgBox("x"), std::logic_error);
}

TEST(KeyNames, AreThoseThatScriptsUse) {
  using namespace key;
  const struct {
    const char* name;
    Key key;
  } cases[] = {{"Enter", {Enter}},         {"Mayús+Tab", {Tab, ShiftBit}},
               {"ESC", {Escape}},          {"F12", {123}},
               {"Espacio", {32, 0, U' '}}, {"AvPág", {34}},
               {"Alt+b", {'B', AltBit}},   {"Control+Mayús+Fin", {35, ControlBit | ShiftBit}},
               {"a", {'A', 0, U'a'}},      {"A", {'A', ShiftBit, U'A'}},
               {"ñ", {0xD1, 0, U'ñ'}},     {",", {Comma, 0, U','}},
               {"+", {Packet, 0, U'+'}},   {"Control++", {Packet, ControlBit}}};
  const auto text = [](const Key& key) {
    return std::to_string(key.code) + "/" + std::to_string(key.shift) + "/" +
           std::to_string(std::uint32_t{key.character});
  };
  for (const auto& c : cases)
    EXPECT_EQ(text(scripts::keyNamed(c.name).value_or(Key{})), text(c.key)) << c.name;
  for (const char* name : {"", "F0", "F13", "F1x", "Entrar", "Foo+A", "Alt+", "ab"})
    EXPECT_FALSE(scripts::keyNamed(name)) << name;
}

}  // namespace
}  // namespace korvantes::screen
