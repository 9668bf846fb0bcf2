#pragma once

#include <optional>
#include <string>

#include "host/component_session.h"
#include "host/database.h"
#include "host/screens.h"

namespace korvantes::host {

/// The database on which the desktop works, with the component at work on it; or the reason why
/// there is none.
class DesktopBase {
 public:
  /// Opens the database of a URL, or the user's sample database, in place of the one in use. Throws
  /// Failure or ado::Error, also for a file without our tables; the one in use stays then.
  void open(const std::optional<std::string>& url);
  /// Makes a sample database in a new file and opens it. Throws as above, also where there is such
  /// a file.
  void makeSample(const std::string& path);

  bool isOpen() const { return session_.has_value(); }
  /// For the user; only while one is open.
  const std::string& name() const { return database_.name; }
  scripts::Screens screens() const { return screensOf(session_->component()); }

 private:
  void use(Database database);

  Database database_;
  std::optional<ComponentSession> session_;
};

}  // namespace korvantes::host
