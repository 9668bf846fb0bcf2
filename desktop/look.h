// desktop: the Qt 6 face of runtime/screen. It shows the state of the models and reports what the
// user does; it has no screen logic.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>
#include <QString>
#include <string_view>

#include "runtime/screen/control.h"

class QWidget;

namespace korvantes::desktop {

/// 15 twips are one pixel at 96 dots an inch; Qt scales such pixels to the screen's own.
int pixels(int twips);
/// Area of a control within its container. Edges are rounded one by one, so that neighbours that
/// touch in twips touch in pixels.
QRect rectOf(const screen::Control& control);

QColor colorOf(screen::Color color);
/// Sized in pixels, like the controls, so that text and boxes keep their proportions.
QFont fontOf(const screen::Font& font);
Qt::Alignment alignmentOf(screen::Alignment alignment);

QString toQt(std::string_view text);
std::string fromQt(const QString& text);

/// A caption fitted to a width: in a smaller or narrower font if that is enough, otherwise cut with
/// an ellipsis. An & marks the access key and takes no room.
struct FittedText {
  QFont font;
  QString text;
  bool cut = false;
};
FittedText fit(const QString& text, const QFont& font, int width);
/// The font in which a text fits a width whole, however small it has to be.
QFont fontForWhole(const QString& text, const QFont& font, int width);
/// The same as fit with a second line, used if one line is too long.
FittedText fitTwoLines(const QString& text, const QFont& font, int width);

/// The whole text as tooltip of a widget that shows it cut; no tooltip otherwise.
void tellWhatIsCut(QWidget& widget, const FittedText& shown, const QString& whole);

/// Colours of what the program itself draws: dialogs, lists, buttons.
QPalette quietPalette();
QColor mixed(const QColor& a, const QColor& b, double shareOfB);

}  // namespace korvantes::desktop
