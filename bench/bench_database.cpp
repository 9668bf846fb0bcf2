#include "bench/bench_database.h"

#include "data/schema.h"
#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"

namespace korvantes::bench {

BenchDatabase::BenchDatabase() {
  connection_ = std::make_shared<sqlite::SqliteConnection>(path(), sqlite::OpenOptions{true});
  for (const std::string& statement : tsql::splitStatements(data::kSchema))
    connection_->Execute(statement);
}

void InsertedRows::add(const std::string& row) {
  constexpr std::size_t kRowsPerInsert = 50;
  text_ += (text_.empty() ? head_ : std::string(", ")) + "(" + row + ")";
  if (++count_ % kRowsPerInsert == 0) flush();
}

void InsertedRows::flush() {
  if (!text_.empty()) connection_.Execute(text_);
  text_.clear();
}

std::string cents(std::size_t value) {
  const std::string tail = std::to_string(100 + value % 100).substr(1);
  return std::to_string(value / 100) + "." + tail;
}

}  // namespace korvantes::bench
