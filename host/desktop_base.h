#pragma once

#include <optional>
#include <string>

#include "host/component_session.h"
#include "host/database.h"
#include "host/screens.h"

namespace korvantes::host {

/// The database that the desktop works on, if any, and the component that uses it.
class DesktopBase {
 public:
  /// Opens the database of a URL, or the user's sample database, in place of the one in use. Throws
  /// Failure or ado::Error, also if one of the company's tables is missing; the one in use then
  /// stays.
  void open(const std::optional<std::string>& url);
  /// Creates a sample database and opens it, in a new file or in one that was only half created.
  /// Throws as above, also if there is a complete database of that name.
  void makeSample(const std::string& path);

  bool isOpen() const { return session_.has_value(); }
  /// The file, for the user. Only while one is open.
  const std::string& name() const { return database_.name; }
  scripts::Screens screens() const { return screensOf(session_->component()); }

 private:
  void use(Database database);

  Database database_;
  std::optional<ComponentSession> session_;
};

}  // namespace korvantes::host
