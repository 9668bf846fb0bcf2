#include <QAbstractItemModelTester>
#include <QTableView>

#include "desktop/grid_model.h"
#include "desktop/list_model.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using Tester = QAbstractItemModelTester;
using ShownRows = OnWindows;

TEST(ItemModels, ListFollowsEveryChangeOfTheRows) {
  SampleForm form;
  form.list.Clear();
  ListModel model(form.list);
  const Tester tester(&model, Tester::FailureReportingMode::Fatal);
  const auto first = [&](int role = Qt::DisplayRole) { return model.index(0, 0).data(role); };
  for (const char* text : {"b", "a", "c"}) form.list.Add(text).SubItems = {"1,00"};
  EXPECT_EQ(model.rowCount(), 0) << "only told at readAgain";
  model.readAgain();
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(first(), "b");
  form.list.Sorted = true;
  form.list.Checked(0, true);
  model.readAgain();
  EXPECT_EQ(first(), "a");
  EXPECT_EQ(first(Qt::CheckStateRole), Qt::Checked);
  EXPECT_EQ(model.index(0, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, Qt::AlignRight);
  form.list.Clear();
  EXPECT_FALSE(first().isValid());  // a row the toolkit still knows is gone already
  form.list.Add("z");
  model.readAgain();
  EXPECT_EQ(model.rowCount(), 1);
}

TEST(ItemModels, GridFollowsItsRecordset) {
  SampleForm form;
  GridModel model(form.grid);
  const Tester tester(&model, Tester::FailureReportingMode::Fatal);
  for (const int rows : {5, 5, 0, 3}) {
    form.grid.DataSource(screen::sampleRows(rows));
    model.readAgain();
    EXPECT_EQ(model.rowCount(), rows);
    EXPECT_EQ(model.columnCount(), 3);
    const QVariant last = rows > 0 ? QVariant("Agente " + QString::number(rows)) : QVariant();
    EXPECT_EQ(model.index(rows - 1, 1).data(), last);
  }
  form.grid.DataSource(ado::Recordset());
  model.readAgain();
  EXPECT_EQ(model.columnCount(), 0);
}

TEST_F(ShownRows, AndTheRecordsetHaveOneCurrentRow) {
  play([&] {
    const auto shown = [&] {
      return static_cast<QTableView&>(widgetOf(form.grid)).currentIndex().row();
    };
    user.selectRow(form.grid, 12);
    EXPECT_EQ(form.grid.currentRow(), 12U);
    EXPECT_EQ(shown(), 12);
    form.save.Click = [&] {
      ado::Recordset rows = form.grid.DataSource();
      rows.MoveLast();
    };
    user.click(form.save);
    EXPECT_EQ(shown(), 59);
  });
}

}  // namespace korvantes::desktop
