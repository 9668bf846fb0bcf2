#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>

#include "runtime/ado/connection.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::bench {

/// A database with empty tables in a temporary folder, which the destructor deletes.
class BenchDatabase {
 public:
  BenchDatabase();

  std::string path() const { return folder_.file("bench.db"); }
  const std::shared_ptr<ado::Connection>& connection() const { return connection_; }

 private:
  ado::TemporaryFolder folder_;
  std::shared_ptr<ado::Connection> connection_;
};

/// One database for each size, made on first use and kept until the program ends.
template <typename Database>
Database& databaseOf(std::size_t size) {
  static std::map<std::size_t, std::unique_ptr<Database>> databases;
  auto& database = databases[size];
  if (!database) database = std::make_unique<Database>(size);
  return *database;
}

/// Sends "INSERT INTO table VALUES (…),(…)" statements of a moderate length.
class InsertedRows {
 public:
  InsertedRows(ado::Connection& connection, std::string head)
      : connection_(connection), head_(std::move(head)) {}
  void add(const std::string& row);
  /// Sends what is left.
  void flush();

 private:
  ado::Connection& connection_;
  std::string head_, text_;
  std::size_t count_ = 0;
};

/// Whole cents as a money literal.
std::string cents(std::size_t value);

}  // namespace korvantes::bench
