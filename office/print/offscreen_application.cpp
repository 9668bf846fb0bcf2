#include "office/print/offscreen_application.h"

#include <QGuiApplication>
#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace korvantes::office {

namespace {

void keepBack(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
  std::abort();
}

}  // namespace

OffscreenApplication::OffscreenApplication()
    : name_("korvantes"),
      option_("-platform"),
      platform_("offscreen"),
      count_(3),
      arguments_{name_.data(), option_.data(), platform_.data(), nullptr} {
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  const QtMessageHandler former = qInstallMessageHandler(keepBack);
  application_ = std::make_unique<QGuiApplication>(count_, arguments_);
  qInstallMessageHandler(former);
  std::setlocale(LC_ALL, locale.c_str());
}

OffscreenApplication::~OffscreenApplication() = default;

bool OffscreenApplication::exists() {
  return QCoreApplication::instance() != nullptr;
}

}  // namespace korvantes::office
