#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/database.h"

namespace korvantes::host {

enum class BaseContents { EmptyTables, SampleData };

/// What createBase changed in each of the two files.
struct CreatedBase {
  bool company = false;
  bool shared = false;
  explicit operator bool() const { return company || shared; }
};

/// Creates the tables in the files of a path, or completes a base that was only half created: each
/// file is looked at by itself, and what it holds already stays. Changes nothing where nothing is
/// missing. Sample data go into a base that has no tables yet; shared tables without rows also get
/// them next to the sample's company file.
/// Throws Failure or ado::Error, also if sample data would end up beside a base of the user's own;
/// nothing was changed or created then.
CreatedBase createBase(const std::string& path, BaseContents contents);

/// The same in a database that is open in mode Create. The shared tables are committed first,
/// because a company's tables without rates would settle with 0 %; the company's follow in a
/// transaction of their own. Whenever it is interrupted, a second call completes the rest.
CreatedBase fillBase(const Database& database, BaseContents contents);

/// Creates the sample database unless it exists, and completes it if it was only half created.
void completeSample(const std::string& path);

/// The tables of ours that the company's file lacks.
std::vector<std::string> missingTables(const Database& database);

}  // namespace korvantes::host
