#include "desktop/look.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPicture>

#include "desktop/icons.h"
#include "tests/desktop/on_windows.h"

namespace korvantes::desktop {

using Look = OnWindows;

TEST_F(Look, PlacesAndColorsAreTheDesigned) {
  for (int left = 0; left < 40; ++left) {
    form.first.place(left, 0, 107, 200);
    form.second.place(left + 107, 0, 93, 200);
    EXPECT_EQ(rectOf(form.first).right() + 1, rectOf(form.second).left()) << "neighbours touch";
  }
  form.first.place(13755, 8490, 15, 285);
  EXPECT_EQ(rectOf(form.first), QRect(917, 566, 1, 19));
  EXPECT_EQ(colorOf(screen::kWindowBackground), QColor(Qt::white));
}

TEST_F(Look, CaptionsAreMadeToFitAndNeverWiderThanTheirPlace) {
  const QFont font = fontOf({8.25, true});
  EXPECT_EQ(font.pixelSize(), 11);
  const QString caption = "Situacion de &cobro de las facturas";
  const int natural = QFontMetrics(font).size(Qt::TextShowMnemonic, caption).width();
  EXPECT_EQ(fit(caption, font, natural).font, font);
  for (int width = 20; width < natural; width += 7) {
    const FittedText shown = fit(caption, font, width);
    EXPECT_LE(QFontMetrics(shown.font).size(Qt::TextShowMnemonic, shown.text).width(), width);
    EXPECT_EQ(shown.cut, shown.text != caption);
  }
  EXPECT_FALSE(fit(caption, font, natural - 4).cut) << "a smaller type is enough";
  EXPECT_FALSE(fitTwoLines(caption, font, natural / 2 + 20).cut);
}

TEST_F(Look, EveryIconDrawsSomething) {
  for (const char* name : {"buscar", "imprimir", "hoja", "marcar", "cancelar", "borrar", "guardar",
                           "salir", "nuevo", "imagen", "agentes", "liquidacion", "informe", "base",
                           "acerca", "critico", "pregunta", "aviso", "informacion"}) {
    QPicture drawing;
    QPainter painter(&drawing);
    paintIcon(painter, name, QRectF(0, 0, 32, 32));
    painter.end();
    EXPECT_FALSE(drawing.boundingRect().isEmpty()) << name;
  }
  EXPECT_FALSE(hasIcon("desconocido"));
}

TEST_F(Look, WindowsShowTheFormAsDesigned) {
  form.text(0).BackColor = 65535;
  play([&] {
    QWidget& window = openWindow<FormWindow>();
    EXPECT_EQ(window.size(), QSize(600, 480));
    EXPECT_EQ(window.windowTitle(), "Muestra");
    EXPECT_EQ(widgetOf(form.check).mapTo(&window, QPoint()), QPoint(308, 40));
    EXPECT_EQ(widgetOf(form.text(0)).grab().toImage().pixelColor(70, 9), QColor(255, 255, 0));
    form.save.Width = 3000;
    form.save.Visible = false;
    EXPECT_EQ(widgetOf(form.save).width(), 200);
    EXPECT_EQ(clicking(form.save), "");
  });
}

}  // namespace korvantes::desktop
