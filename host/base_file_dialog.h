#pragma once

#include <optional>
#include <string>

class QWidget;

namespace korvantes::host {

/// Asks for the file of a database: an existing one, or the name of a new one. The dialog begins in
/// the folder of `current`, or of the user. Nothing when it was left.
std::optional<std::string> askForBaseFile(QWidget& parent, const std::string& current);
std::optional<std::string> askForNewBaseFile(QWidget& parent, const std::string& current);

}  // namespace korvantes::host
