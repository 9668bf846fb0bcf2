#include "host/desktop_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QVBoxLayout>
#include <exception>

#include "desktop/icons.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "host/base_file_dialog.h"
#include "library/factory.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

using desktop::iconNamed;
using desktop::makeChild;
using desktop::toQt;

constexpr const char* kTitle = "KORVANTES";
constexpr const char* kSubject = "Comisiones de agentes";
constexpr int kMargin = 20;
constexpr int kWidth = 560;
constexpr int kButtonMargin = 16;

/// Adds a capital letter and a full stop; the texts of failures have neither.
std::string asSentence(std::string_view words) {
  QString text = toQt(onOneLine(words));
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  if (!text.endsWith(u'.')) text += u'.';
  return desktop::fromQt(text);
}

}  // namespace

DesktopWindow::DesktopWindow(desktop::QtDesktop& desktop)
    : desktop_(desktop), card_(makeChild<BaseCard>(this)) {
  setWindowTitle(kTitle);
  setWindowIcon(iconNamed("liquidacion"));
  auto& content = makeChild<QWidget>(this);
  auto& layout = makeChild<QVBoxLayout>(&content);
  layout.setContentsMargins(0, 0, 0, kMargin);
  layout.setSpacing(kMargin);
  addHeader(layout);
  addEntries(layout);
  addBase(layout);
  layout.addStretch(1);
  addMenus();
  setCentralWidget(&content);
  resize(std::max(kWidth, sizeHint().width()), sizeHint().height());
  desktop_.mainWindow(this);
  refresh();
}

DesktopWindow::~DesktopWindow() {
  desktop_.mainWindow(nullptr);
}

void DesktopWindow::addHeader(QVBoxLayout& layout) {
  auto& header = makeChild<QWidget>(this);
  header.setAutoFillBackground(true);
  QPalette colors = header.palette();
  colors.setColor(QPalette::Window, colors.color(QPalette::Highlight));
  colors.setColor(QPalette::WindowText, colors.color(QPalette::HighlightedText));
  header.setPalette(colors);

  auto& row = makeChild<QHBoxLayout>(&header);
  row.setContentsMargins(kMargin, kMargin - 4, kMargin, kMargin - 4);
  row.setSpacing(kMargin - 4);
  auto& words = makeChild<QVBoxLayout>();
  words.setSpacing(2);
  auto& title = makeChild<QLabel>(kTitle, &header);
  title.setFont(desktop::fontOf({16, true}));
  words.addWidget(&title);
  words.addWidget(&makeChild<QLabel>(kSubject, &header));
  row.addLayout(&words, 1);
  auto& version = makeChild<QLabel>("Versión " + toQt(korvantes_version()), &header);
  row.addWidget(&version, 0, Qt::AlignBottom);
  layout.addWidget(&header);
}

void DesktopWindow::addEntries(QVBoxLayout& layout) {
  auto& entries = makeChild<QVBoxLayout>();
  entries.setContentsMargins(kMargin, 0, kMargin, 0);
  entries.setSpacing(10);
  for (const DesktopEntry& entry : kDesktopEntries) {
    auto& button = makeChild<EntryButton>(entry, this);
    connect(&button, &QPushButton::clicked, this, [this, &entry] { openScreen(entry); });
    entries.addWidget(&button);
    buttons_.push_back(&button);
  }
  layout.addLayout(&entries);
}

void DesktopWindow::addBase(QVBoxLayout& layout) {
  auto& base = makeChild<QVBoxLayout>();
  base.setContentsMargins(kMargin, 0, kMargin, 0);
  base.setSpacing(12);
  base.addWidget(&card_);
  auto& row = makeChild<QHBoxLayout>();
  row.addStretch(1);
  auto& choose = makeChild<QPushButton>("&Elegir base de datos…", this);
  auto& sample = makeChild<QPushButton>("Nueva base de &muestra…", this);
  connect(&choose, &QPushButton::clicked, this, [this] { askForBase(); });
  connect(&sample, &QPushButton::clicked, this, [this] { askForSample(); });
  for (QPushButton* button : {&choose, &sample}) {
    button->setMinimumWidth(button->sizeHint().width() + kButtonMargin);
    row.addWidget(button);
  }
  base.addLayout(&row);
  layout.addLayout(&base);
}

void DesktopWindow::addMenus() {
  // The menus use the access keys B, C and A; the buttons of the window use others.
  QMenu& bases = *menuBar()->addMenu("&Base de datos");
  bases.addAction(iconNamed("base"), "&Elegir base de datos…", QKeySequence("Ctrl+O"), this,
                  [this] { askForBase(); });
  bases.addAction(iconNamed("nuevo"), "Nueva base de &muestra…", this, [this] { askForSample(); });
  bases.addSeparator();
  bases.addAction(iconNamed("salir"), "&Salir", QKeySequence("Ctrl+Q"), this, [this] { close(); });

  QMenu& screens = *menuBar()->addMenu("&Comisiones");
  for (const DesktopEntry& entry : kDesktopEntries)
    entryActions_.push_back(screens.addAction(iconNamed(entry.icon), entry.caption,
                                              QKeySequence(entry.shortcut), this,
                                              [this, &entry] { openScreen(entry); }));

  QMenu& help = *menuBar()->addMenu("A&yuda");
  help.addAction(iconNamed("acerca"), "&Acerca de KORVANTES", QKeySequence("F1"), this,
                 [this] { tellAbout(); });
}

void DesktopWindow::openBase(const std::optional<std::string>& url) {
  try {
    base_.open(url);
  } catch (const std::exception& failure) {
    problem_ = asSentence(failure.what());
  }
  refresh();
}

void DesktopWindow::openScreen(const DesktopEntry& entry) {
  takesInput(false);
  attempt([&] { base_.screens().at(entry.screen)(std::nullopt); });
  takesInput(true);
  refresh();
}

void DesktopWindow::useFile(const std::string& path) {
  attempt([&] { base_.open("sqlite:" + path); });
}

void DesktopWindow::makeSample(const std::string& path) {
  attempt([&] { base_.makeSample(path); });
}

void DesktopWindow::tellAbout() {
  desktop_.messageBox({std::string(kTitle) + " " + korvantes_version() + "\n" + kSubject +
                           "\n\nVentanas: Qt " + qVersion(),
                       screen::style::Information, "Acerca de KORVANTES"});
}

void DesktopWindow::askForBase() {
  if (const auto path = askForBaseFile(*this, base_.name())) useFile(*path);
}

void DesktopWindow::askForSample() {
  if (const auto path = askForNewBaseFile(*this, base_.name())) makeSample(*path);
}

/// Exceptions must not pass through Qt.
void DesktopWindow::attempt(const std::function<void()>& work) {
  try {
    work();
  } catch (const std::exception& failure) {
    desktop_.messageBox({asSentence(failure.what()), screen::style::Critical, kTitle});
  }
  refresh();
}

/// While a screen is open this window can be closed, but does nothing else.
void DesktopWindow::takesInput(bool takes) {
  centralWidget()->setEnabled(takes);
  menuBar()->setEnabled(takes);
}

void DesktopWindow::refresh() {
  const bool open = base_.isOpen();
  if (open)
    card_.showBase(base_.name());
  else
    card_.showProblem(problem_);
  for (EntryButton* button : buttons_) button->setEnabled(open);
  for (QAction* action : entryActions_) action->setEnabled(open);
  if (open && focusWidget() == nullptr) buttons_.front()->setFocus();
}

/// Activating it while a screen is open activates that screen.
void DesktopWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    if (child->isWindow() && child->isVisible()) child->activateWindow();
}

void DesktopWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  // Ends the loops of open forms too; the calls that show them unload them and return.
  QCoreApplication::exit();
}

}  // namespace korvantes::host
