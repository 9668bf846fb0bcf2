#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <string_view>

class QFileDialog;

namespace korvantes::desktop {

class WindowStack;

/// "Imágenes|*.bmp;*.jpg|Todos|*.*" as Qt writes filters: "Imágenes (*.bmp *.jpg)", "Todos (*)".
QStringList filtersOf(std::string_view filter);

/// Makes it Qt's own dialog, which needs no session bus, with Spanish labels even if Qt's
/// translations are not installed.
/// @param accept caption of the button that accepts, with its access key
void speakSpanish(QFileDialog& dialog, const char* accept);

/// Asks for a file to open; empty if the user cancels.
std::optional<std::string> askForFile(WindowStack& stack, std::string_view filter);

}  // namespace korvantes::desktop
