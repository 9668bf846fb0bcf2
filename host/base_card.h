#pragma once

#include <QFrame>
#include <string_view>

class QLabel;

namespace korvantes::host {

/// The part of the main window that names the database in use, or says why there is none.
class BaseCard : public QFrame {
 public:
  explicit BaseCard(QWidget* parent);

  void showBase(std::string_view name);
  void showProblem(std::string_view sentence);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void show(const char* icon, const QString& heading, const QString& words);
  void fitWords();

  QLabel& icon_;
  QLabel& heading_;
  QLabel& words_;
  QString whole_;
  bool problem_ = false;
};

}  // namespace korvantes::host
