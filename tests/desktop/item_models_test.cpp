#include <QAbstractItemModelTester>
#include <QTableView>

#include "desktop/grid_model.h"
#include "desktop/list_model.h"
#include "desktop/row_table.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using Tester = QAbstractItemModelTester;
using ItemModels = OnWindows;

TEST_F(ItemModels, ListFollowsEveryChangeOfTheRows) {
  form.list.Clear();
  ListModel model(form.list);
  const Tester tester(&model, Tester::FailureReportingMode::Fatal);
  const auto first = [&](int role = Qt::DisplayRole) { return model.index(0, 0).data(role); };
  for (const char* text : {"b", "a", "c"}) form.list.Add(text).SubItems = {"1,00"};
  EXPECT_EQ(model.rowCount(), 0) << "only told at readAgain";
  form.list.Sorted = true;
  form.list.Checked(0, true);
  model.readAgain();
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(first(), "a");
  EXPECT_EQ(first(Qt::CheckStateRole), Qt::Checked);
  form.list.Clear();
  EXPECT_FALSE(first().isValid());  // a row the toolkit still knows is gone already
}

TEST_F(ItemModels, GridFollowsItsRecordset) {
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

TEST_F(ItemModels, NumbersAreShownToTheirLastDigitInColumnsOfAnyWidth) {
  QWidget window;
  RowTable table(window);
  table.resize(300, 60);
  GridModel model(form.grid);
  table.setModel(&model);
  const auto picture = [&](const std::string& text, int width) {
    ado::Recordset rows = screen::sampleRows(1);
    rows.Collect("Nombre", text);
    rows.Update();
    form.grid.DataSource(rows);
    model.readAgain();
    table.setColumnHidden(0, true);
    table.setColumnWidth(1, width);
    return table.grab().toImage();
  };
  for (const int width : {40, 54, 70}) {
    EXPECT_NE(picture("-123.456.789,01 ", width), picture("-123.456.789,08 ", width)) << width;
    EXPECT_EQ(picture("Representaciones 1", width), picture("Representaciones 2", width));
  }
}

TEST_F(ItemModels, ShowTheCurrentRowOfTheRecordset) {
  form.save.Click = [rows = form.grid.DataSource()]() mutable { rows.MoveLast(); };
  play([&] {
    user.selectRow(form.grid, 12);
    user.click(form.save);
    EXPECT_EQ(widgetOf<QTableView>(form.grid).currentIndex().row(), 59);
  });
}

}  // namespace korvantes::desktop
