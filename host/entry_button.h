#pragma once

#include <QPushButton>

#include "host/desktop_entries.h"

namespace korvantes::host {

/// A large button of the main window: icon, caption, what it is for, shortcut.
class EntryButton : public QPushButton {
 public:
  EntryButton(const DesktopEntry& entry, QWidget* parent);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const DesktopEntry& entry_;
};

}  // namespace korvantes::host
