#include "runtime/screen/list_view.h"

#include <chrono>

#include "tests/screen/on_stage.h"

namespace korvantes::screen {
namespace {

class ListViews : public OnStage {
 protected:
  ListViews() {
    list.Clear();
    int number = 0;
    for (const char* text : {"b", "á", "B", "ñ", "a", "n"})
      list.Add(text).SubItems = {std::to_string(++number)};
  }
  std::string shown() const {
    std::string texts;
    for (std::size_t row = 0; row < list.Count(); ++row)
      texts += list.item(row).Text + list.item(row).cell(1) + " ";
    return texts;
  }
  ListView& list = form.list;
};

TEST_F(ListViews, SortByTheTextOfAColumnAndKeepEqualRowsInOrder) {
  list.Sorted = true;
  EXPECT_EQ(shown(), "a5 á2 b1 B3 n6 ñ4 ");
  list.SortOrder = 1;
  EXPECT_EQ(shown(), "ñ4 n6 b1 B3 á2 a5 ");
  list.SortKey = 1;
  list.Add("z").SubItems = {"45"};
  EXPECT_EQ(shown(), "n6 a5 z45 ñ4 B3 á2 b1 ");
  list.SortKey = 9;  // no such column: all rows equal
  EXPECT_EQ(shown(), "b1 á2 B3 ñ4 a5 n6 z45 ");
  list.Clear();
  EXPECT_EQ(list.SelectedRow(), -1);
  EXPECT_THROW(list.item(0), std::out_of_range);
}

TEST_F(ListViews, TakeTicksAndClicksOnHeadings) {
  list.Sorted = true;
  play([&] {
    list.Checked(0, true);  // of the program
    for (const std::size_t row : {1U, 1U, 6U}) user.tick(list, row, true);
    list.Enabled = false;
    user.tick(list, 0, false);
    list.Enabled = true;
    EXPECT_TRUE(list.item(0).Checked && list.item(1).Checked);
    EXPECT_EQ(form.taken(), "-t(0), +list, list á on");
    list.ColumnClick = [&](int column) { list.SortKey = column - 1; };
    for (const int column : {2, 0, 3}) user.clickColumn(list, column);
    EXPECT_EQ(shown(), "b1 á2 B3 ñ4 a5 n6 ");
    EXPECT_EQ(list.SelectedRow(), 1) << "the cursor stays on its row";
    EXPECT_FALSE(UserInput(form).editLabel(list, 0));
    list.BeforeLabelEdit = nullptr;
    EXPECT_TRUE(UserInput(form).editLabel(list, 0));
  });
}

TEST_F(ListViews, LikeGridsHaveOneCurrentRow) {
  ado::Recordset rows = form.grid.DataSource();
  play([&] {
    for (const std::size_t row : {2U, 60U}) user.selectRow(form.grid, row);
    EXPECT_EQ(rows.position(), 2U);
    rows.MoveFirst();
    EXPECT_EQ(form.grid.currentRow(), 0U);
    for (const int column : {1, 2}) user.pressCellButton(form.grid, column);
    rows.MoveLast();
    rows.MoveNext();
    user.pressCellButton(form.grid, 2);
    EXPECT_EQ(form.taken(), "-t(0), +grid, grid button 2");
    form.grid.DataSource(ado::Recordset());
    EXPECT_EQ(form.grid.ColumnCount(), 0U);
  });
}

TEST_F(ListViews, OfAHundredThousandRowsSortAndTickAtOnce) {
  list.Clear();
  list.Sorted = true;
  const auto start = std::chrono::steady_clock::now();
  play([&] {
    for (int i = 0; i < 100000; ++i) list.Add(std::to_string(i * 7919 % 100000 + 100000));
    for (std::size_t row = 0; row < list.Count(); ++row) list.Checked(row, true);
    user.tick(list, 99999, false);
    EXPECT_TRUE(list.item(99999).Text == "199999" && !list.item(99999).Checked);
  });
  // Generous: far above what it takes, far below a sort for each row or a widget for each cell.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace korvantes::screen
