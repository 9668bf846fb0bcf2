#include "runtime/screen/list_view.h"

#include <chrono>
#include <gtest/gtest.h>

#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

class ListViews : public OnStage {
 protected:
  ListViews() {
    form.list.ColumnHeaders = {{"Factura"}, {"Importe"}};
    form.list.ItemCheck = [&](const ListView::ListItem& item) {
      form.log.push_back("check " + item.Text + (item.Checked ? " on" : " off"));
    };
    int number = 0;
    for (const char* text : {"b", "á", "B", "ñ", "a", "n"})
      form.list.Add(text).SubItems = {std::to_string(++number)};
  }
  std::string shown() const {
    std::string texts;
    for (std::size_t row = 0; row < form.list.Count(); ++row) {
      const auto& item = form.list.item(row);
      texts += item.Text + item.cell(1) + " ";
    }
    return texts;
  }
};

TEST_F(ListViews, SortByTheTextOfAColumnAndKeepEqualRowsInOrder) {
  EXPECT_EQ(shown(), "b1 á2 B3 ñ4 a5 n6 ");
  form.list.Sorted = true;
  EXPECT_EQ(shown(), "a5 á2 b1 B3 n6 ñ4 ");
  form.list.SortOrder = 1;
  EXPECT_EQ(shown(), "ñ4 n6 b1 B3 á2 a5 ");
  form.list.SortKey = 1;
  EXPECT_EQ(shown(), "n6 a5 ñ4 B3 á2 b1 ");
  form.list.Add("z").SubItems = {"45"};
  EXPECT_EQ(shown(), "n6 a5 z45 ñ4 B3 á2 b1 ");
  form.list.SortKey = 9;  // no such column: all rows equal
  EXPECT_EQ(shown(), "b1 á2 B3 ñ4 a5 n6 z45 ");
  form.list.Clear();
  EXPECT_EQ(form.list.SelectedRow(), -1);
  EXPECT_THROW(form.list.item(0), std::out_of_range);
  form.list.Add("y");
  EXPECT_EQ(shown(), "y ");
}

TEST_F(ListViews, TicksOfTheUserRaiseTheEventThoseOfTheProgramNone) {
  form.list.Sorted = true;
  stage.play(form, [&] {
    form.list.Checked(0, true);
    EXPECT_EQ(form.taken(), Log{});
    EXPECT_TRUE(form.list.item(0).Checked);
    EXPECT_TRUE(stage.user().tick(form.list, 1, true));
    EXPECT_EQ(form.taken(), (Log{"Text1(0) LostFocus", "ListView1 GotFocus", "check á on"}));
    EXPECT_TRUE(stage.user().tick(form.list, 1, true));  // is ticked already
    EXPECT_FALSE(stage.user().tick(form.list, 6, true));
    stage.press("Espacio");
    stage.press("Abajo");
    stage.press("Espacio");
    stage.press("AvPág");
    EXPECT_EQ(form.list.SelectedRow(), 5);
    EXPECT_EQ(form.taken(), (Log{"check á off", "Form_KeyUp 32", "Form_KeyUp 40", "check b on",
                                 "Form_KeyUp 32", "Form_KeyUp 34"}));
    form.list.Enabled = false;
    EXPECT_FALSE(stage.user().tick(form.list, 0, false));
  });
}

TEST_F(ListViews, HeadingsSortWithTheCursorOnItsRowAndLabelsAskForLeave) {
  form.list.ColumnClick = [&](int column) {
    form.list.SortKey = column - 1;
    form.list.Sorted = true;
  };
  stage.play(form, [&] {
    form.list.SelectedRow = 0;
    EXPECT_TRUE(stage.user().clickColumn(form.list, 1));
    EXPECT_EQ(form.list.SelectedRow(), 2);
    EXPECT_EQ(form.list.item(2).cell(1), "1");
    EXPECT_FALSE(stage.user().clickColumn(form.list, 0));
    EXPECT_FALSE(stage.user().clickColumn(form.list, 3));
    EXPECT_TRUE(stage.user().editLabel(form.list, 0));
    form.list.BeforeLabelEdit = [](int& cancel) { cancel = 1; };
    EXPECT_FALSE(stage.user().editLabel(form.list, 0));
  });
}

TEST_F(ListViews, OfAHundredThousandRowsSortAndTickAtOnce) {
  form.list.Clear();
  form.list.Sorted = true;
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 100000; ++i) form.list.Add(std::to_string(i * 7919 % 100000 + 100000));
  for (std::size_t row = 0; row < form.list.Count(); ++row) form.list.Checked(row, true);
  EXPECT_EQ(form.list.item(99999).Text, "199999");
  // Generous: far above what it takes, far below what a sort for each row would.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace korvantes::screen
