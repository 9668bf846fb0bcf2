#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace korvantes::desktop {

class QtDesktop;
class WindowStack;

/// A file to be saved, as it is suggested to the user.
struct SaveRequest {
  std::string title;   ///< of the dialog
  std::string filter;  ///< "Description|*.a", pairs joined by |
  std::string suffix;  ///< added to a name without one, "pdf"
  std::string name;    ///< with its suffix, without a folder
};

/// The user's folder for documents, or his home where he has none.
std::filesystem::path documentsFolder();

/// Asks for the file to save under, beginning in the folder; nothing when the dialog was left. A
/// file that is there is only given after the user has agreed to replace it.
std::optional<std::filesystem::path> askWhereToSave(QtDesktop& desktop, WindowStack& stack,
                                                    const SaveRequest& request,
                                                    const std::filesystem::path& folder);

}  // namespace korvantes::desktop
