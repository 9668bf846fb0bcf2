#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace korvantes::desktop {

class QtDesktop;
class WindowStack;

/// What is suggested to the user for a file to be saved.
struct SaveRequest {
  std::string title;   ///< of the dialog
  std::string filter;  ///< "Description|*.a", pairs joined by |
  std::string suffix;  ///< added to a name without one, "pdf"
  std::string name;    ///< with its suffix, without a folder
};

/// The user's folder for documents, or the home folder if there is none.
std::filesystem::path documentsFolder();

/// Asks where to save a file, starting in the folder; empty if the user cancels. An existing file
/// is only returned after the user has agreed to replace it.
std::optional<std::filesystem::path> askWhereToSave(QtDesktop& desktop, WindowStack& stack,
                                                    const SaveRequest& request,
                                                    const std::filesystem::path& folder);

}  // namespace korvantes::desktop
