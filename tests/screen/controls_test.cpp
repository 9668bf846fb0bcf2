#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

#include "runtime/ado/recordset.h"
#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

using ComboBoxes = OnStage;
using Controls = OnStage;
using DataGrids = OnStage;
using Faces = OnStage;

TEST_F(Controls, AreFoundByTheirIdentityAndArraysMayHaveGaps) {
  ControlArray<TextBox> fields(form, "txtFields");
  fields.add(0);
  fields.add(7);
  EXPECT_TRUE(fields.contains(7));
  EXPECT_THROW(fields(3), std::out_of_range);
  EXPECT_THROW(fields.add(7), std::logic_error);
  EXPECT_EQ(form.findControl("TXTFIELDS(7)"), &fields(7));
  EXPECT_EQ(form.findControl("txtFields"), nullptr);
  EXPECT_EQ(form.findControl("cmdgrabar"), &form.button);
}

TEST_F(Controls, RaiseEventsInsideTheProgramsOwnAssignments) {
  OptionButton yes(form, "Option1", 0), no(form, "Option1", 1);
  int clicks = 0;
  yes.Click = no.Click = [&] { ++clicks; };
  form.first.Text = "x";
  form.first.Text = "x";
  form.check.Value = 1;
  yes.Value = true;
  no.Value = true;
  EXPECT_FALSE(yes.Value());
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.log, (Log{"Text1(0) Change x", "Check1 Click"}));
}

TEST_F(ComboBoxes, SelectEntriesAndRefuseWhatIsNone) {
  form.combo.AddItem("01 - Uno");
  form.combo.AddItem("02 - Dos");
  form.combo.ListIndex = 1;
  EXPECT_EQ(form.combo.Text(), "02 - Dos");
  EXPECT_THROW(form.combo.ListIndex = 9, std::out_of_range);
  EXPECT_THROW(form.combo.Text = "03", std::invalid_argument);
  EXPECT_EQ(form.combo.ListIndex(), 1);
  EXPECT_EQ(form.combo.Text(), "02 - Dos");
  form.combo.Text = "01 - Uno";
  EXPECT_EQ(form.combo.ListIndex(), 0);
  EXPECT_EQ(form.taken(), (Log{"cboPais Click", "cboPais Click"}));
  form.combo.Clear();
  EXPECT_EQ(form.combo.ListIndex(), -1);
  EXPECT_EQ(form.combo.Text(), "");
  EXPECT_EQ(form.combo.ListCount(), 0);
  EXPECT_EQ(form.taken(), Log{});
}

TEST_F(ComboBoxes, TakeTypingWhereTheyAreEditable) {
  form.combo.AddItem("01 - Uno");
  form.combo.Change = [&] { form.log.push_back("Change " + form.combo.Text()); };
  stage.play(form, [&] {
    EXPECT_FALSE(stage.user().typeEntry(form.combo, "9"));
    EXPECT_FALSE(stage.user().selectEntry(form.combo, 1));
    form.combo.Editable = true;
    EXPECT_TRUE(stage.user().selectEntry(form.combo, 0));
    form.taken();
    stage.press("Retroceso");
    EXPECT_EQ(form.combo.ListIndex(), -1);
    stage.user().typeEntry(form.combo, "1");
    stage.type("2");
    EXPECT_EQ(form.combo.Text(), "12");
    EXPECT_THAT(form.log, testing::Contains("Change 12"));
    EXPECT_THAT(form.log, testing::Not(testing::Contains("cboPais Click")));
  });
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

TEST_F(Faces, HearOfRealChangesAlone) {
  Face face;
  form.observe(&face);
  form.Caption = "Muestra";
  form.Caption = "Otra";
  form.button.Enabled = true;
  form.button.Enabled = false;
  form.combo.AddItem("x");
  EXPECT_EQ(face.heard,
            (Log{"form.Caption", "cmdGrabar.Enabled", "cboPais.ListCount", "cboPais rows"}));
  stage.play(form, [&] {
    face.heard.clear();
    stage.user().moveFocus(form.list);
  });
  EXPECT_EQ(face.heard, (Log{"active", "unloaded"}));
}

TEST_F(DataGrids, ShareTheCurrentRowWithTheirRecordset) {
  DataGrid grid(form, "dbgLiqui");
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
  std::vector<int> pressed;
  grid.ButtonClick = [&](int column) { pressed.push_back(column); };
  stage.play(form, [&] {
    grid.DataSource(rows);
    grid.Columns(1).NumberFormat = "#,##0.00";
    EXPECT_EQ(grid.cellText(0, 1, stage.regional()), "1.000,50");
    EXPECT_EQ(grid.cellText(1, 1, stage.regional()), "");
    EXPECT_TRUE(stage.user().selectRow(grid, 2));
    EXPECT_FALSE(stage.user().selectRow(grid, 3));
    stage.press("Arriba");
    EXPECT_EQ(rows.position(), 1U);
    Face face;
    form.observe(&face);
    form.button.Click = [&] { rows.MoveFirst(); };
    stage.user().click(form.button);
    EXPECT_EQ(grid.currentRow(), 0U);
    EXPECT_THAT(face.heard, testing::Contains("dbgLiqui rows"));
    form.observe(nullptr);
    EXPECT_FALSE(stage.user().pressCellButton(grid, 1));
    grid.Columns(1).Button = true;
    EXPECT_TRUE(stage.user().pressCellButton(grid, 1));
    rows.MoveLast();
    rows.MoveNext();
    EXPECT_FALSE(stage.user().pressCellButton(grid, 1));
    EXPECT_EQ(pressed, (std::vector<int>{1}));
    grid.DataSource(ado::Recordset());
    EXPECT_EQ(grid.ColumnCount(), 0U);
  });
}

}  // namespace
}  // namespace korvantes::screen
