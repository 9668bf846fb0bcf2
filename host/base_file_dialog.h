#pragma once

#include <optional>
#include <string>

class QWidget;

namespace korvantes::host {

/// Asks for the file of a database: an existing one, or the name of a new one. The dialog starts in
/// the folder of `current`, or in the user's. Empty if the user cancels.
std::optional<std::string> askForBaseFile(QWidget& parent, const std::string& current);
std::optional<std::string> askForNewBaseFile(QWidget& parent, const std::string& current);

}  // namespace korvantes::host
