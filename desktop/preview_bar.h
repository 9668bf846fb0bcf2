#pragma once

#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPrintPreviewWidget;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace korvantes::desktop {

/// The tools above the pages of a preview: buttons of the window, zoom, and turning pages.
class PreviewBar : public QWidget {
 public:
  PreviewBar(QPrintPreviewWidget& pages, QWidget* parent);

  /// Adds a button of the window, to the left or right of all tools.
  void addLeft(QPushButton& button);
  void addRight(QPushButton& button);
  /// Shows the current page and the number of pages.
  void showPlace();
  void goTo(int page);

 private:
  QToolButton& addTool(const char* icon, const char* tip, const QKeySequence& keys);
  void addZoom();
  void addTurning();
  void zoomTo(int choice);
  void zoomBy(int direction);

  QPrintPreviewWidget& pages_;
  QHBoxLayout& row_;
  QComboBox& zoom_;
  QSpinBox& page_;
  QLabel& count_;
  QToolButton* previous_ = nullptr;
  QToolButton* next_ = nullptr;
  int leftButtons_ = 0;
};

}  // namespace korvantes::desktop
