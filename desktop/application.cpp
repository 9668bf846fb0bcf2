#include "desktop/application.h"

#include <QApplication>
#include <QImageReader>
#include <QLibraryInfo>
#include <QProxyStyle>
#include <QToolTip>
#include <QTranslator>
#include <QWidget>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <langinfo.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "desktop/look.h"
#include "runtime/ado/error.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::desktop {

namespace {

constexpr int kMostPictureMegabytes = 128;  // decoded, with room above the pixels of pictures.h

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

/// Drops the offscreen platform's complaints, and messages about damaged pictures and files that no
/// program opens, which we report to the user ourselves.
void say(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text.startsWith(QLatin1String("This plugin does not support"))) return;
  if (text.startsWith(QLatin1String("Unable to detect a launcher"))) return;
  if (std::string_view(context.category).starts_with("qt.gui.imageio")) return;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
  if (type == QtFatalMsg) std::abort();
}

bool ownFolder(const char* path) {
  struct stat found {};
  return stat(path, &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == geteuid() &&
         (found.st_mode & 0777) == 0700;
}

/// Qt warns on standard error unless LANG names a UTF-8 character set. Numbers and dates keep the
/// user's settings.
void useUtf8() {
  std::setlocale(LC_CTYPE, "");
  const bool utf8 = std::string_view(nl_langinfo(CODESET)) == "UTF-8";
  std::setlocale(LC_CTYPE, "C");
  if (utf8) return;
  if (isSet("LC_ALL")) {
    setenv("LC_NUMERIC", std::getenv("LC_ALL"), 1);
    unsetenv("LC_ALL");
  }
  setenv("LC_CTYPE", "C.UTF-8", 1);
}

/// Fusion, except that the list of a combo box opens below its field, as on the designed forms.
class FormStyle : public QProxyStyle {
 public:
  FormStyle() : QProxyStyle("Fusion") {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

/// Sets the process's environment before Qt reads it.
struct Application::Environment {
  Environment() {
    if (!displayAvailable() && !isSet("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // Widgets need no OpenGL, whose libraries print warnings on a forwarded display.
    setenv("QT_XCB_GL_INTEGRATION", "none", 0);
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime == nullptr || !ownFolder(runtime)) makeRuntimeFolder();
    useUtf8();
  }

  void makeRuntimeFolder() {
    try {
      runtimeFolder.emplace("/tmp");
      setenv("XDG_RUNTIME_DIR", runtimeFolder->path().c_str(), 1);
    } catch (const ado::Error&) {
      // Qt then warns, but works without one.
    }
  }

  std::optional<ado::TemporaryFolder> runtimeFolder;
};

struct Application::Toolkit {
  explicit Toolkit(std::string programName)
      : formerHandler(qInstallMessageHandler(say)),
        name(std::move(programName)),
        arguments{name.data(), nullptr},
        application(count, arguments.data()) {
    // printf and strtod elsewhere in the program rely on the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(std::make_unique<FormStyle>().release());  // owned from now on
    QApplication::setPalette(quietPalette());
    QApplication::setFont(fontOf({9, false}));
    QToolTip::setPalette(quietPalette());
    QImageReader::setAllocationLimit(kMostPictureMegabytes);
    if (spanish.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
      QCoreApplication::installTranslator(&spanish);
  }
  ~Toolkit() { qInstallMessageHandler(formerHandler); }
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

  QtMessageHandler formerHandler;
  std::string name;
  int count = 1;
  std::vector<char*> arguments;
  QTranslator spanish;
  QApplication application;
};

Application::Application(std::string programName)
    : environment_(std::make_unique<Environment>()),
      toolkit_(std::make_unique<Toolkit>(std::move(programName))) {}

Application::~Application() {
  // Qt must end while its folder still exists.
  toolkit_.reset();
}

bool Application::displayAvailable() {
  return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

bool Application::visible() const {
  return QGuiApplication::platformName() != QLatin1String("offscreen");
}

int Application::run(QWidget& mainWindow) {
  QGuiApplication::setQuitOnLastWindowClosed(true);
  mainWindow.show();
  const int status = QApplication::exec();
  QGuiApplication::setQuitOnLastWindowClosed(false);
  return status;
}

}  // namespace korvantes::desktop
