#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QTableView>
#include <gmock/gmock.h>

#include "desktop/grid_model.h"
#include "desktop/list_model.h"
#include "desktop/row_table.h"
#include "tests/desktop/stages.h"

namespace korvantes::desktop {

using Tester = QAbstractItemModelTester;
using ShownRows = OnWindows;

TEST(ItemModels, ListFollowsEveryChangeOfTheRows) {
  SampleForm form;
  form.list.ColumnHeaders = {{"Factura", 1440, screen::Alignment::Left},
                             {"Importe", 900, screen::Alignment::Right}};
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
  RealStage desktop;
  desktop.regional(screen::Regional::named("es-ES"));
  SampleForm form;
  GridModel model(form.grid);
  const Tester tester(&model, Tester::FailureReportingMode::Fatal);
  for (const int rows : {5, 5, 0, 3}) {
    form.grid.DataSource(sampleRows(rows));
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

TEST(ItemModels, NumbersAreShownToTheirLastDigitInColumnsOfAnyWidth) {
  SampleForm form;
  QWidget window;
  RowTable table(window);
  table.resize(300, 60);
  const auto picture = [&](const std::string& text, int width) {
    ado::Recordset rows = sampleRows(1);
    rows.Collect("Nombre", text);
    rows.Update();
    form.grid.DataSource(rows);
    GridModel model(form.grid);
    table.setModel(&model);
    table.setColumnHidden(0, true);
    table.setColumnWidth(1, width);
    const QImage image = table.grab().toImage();
    table.setModel(nullptr);
    return image;
  };
  for (const int width : {40, 54, 70}) {
    EXPECT_NE(picture("-123.456.789,01 ", width), picture("-123.456.789,08 ", width)) << width;
    EXPECT_EQ(picture("Representaciones 1", width), picture("Representaciones 2", width));
  }
}

TEST_F(ShownRows, AndTheRecordsetHaveOneCurrentRow) {
  play([&](Robot& robot) {
    const auto shown = [&] {
      return static_cast<QTableView&>(widgetOf(form.grid)).currentIndex().row();
    };
    robot.selectRow(form.grid, 12);
    EXPECT_EQ(form.grid.currentRow(), 12U);
    EXPECT_EQ(shown(), 12);
    form.save.Click = [&] {
      ado::Recordset rows = form.grid.DataSource();
      rows.MoveLast();
    };
    robot.click(form.save);
    EXPECT_EQ(shown(), 59);
  });
}

TEST_F(ShownRows, AreThereAtOnceWhenTheyAreAHundredThousand) {
  play([&](Robot& robot) {
    for (int i = 0; i < 100'000; ++i) form.list.Add(std::to_string(i)).SubItems = {"1,00"};
    QElapsedTimer clock;
    clock.start();
    robot.tick(form.list, 99'999, true);
    form.list.Checked(0, true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.list.item(99'999).Checked);
    // The work for what is on the screen; one item a cell would take seconds.
    EXPECT_LT(clock.elapsed(), 2000);
  });
}

}  // namespace korvantes::desktop
