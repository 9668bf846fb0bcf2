#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <string_view>

namespace korvantes::desktop {

class WindowStack;

/// "Imágenes|*.bmp;*.jpg|Todos|*.*" as Qt writes filters: "Imágenes (*.bmp *.jpg)", "Todos (*)".
QStringList filtersOf(std::string_view filter);

/// Asks for a file to open; nothing when the dialog was left.
std::optional<std::string> askForFile(WindowStack& stack, std::string_view filter);

}  // namespace korvantes::desktop
