#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace korvantes::bench {

/// What an engineer in a hurry would write straight against the C API of sqlite3 for one screen:
/// the same statements, prepared once, the rule of the commission in plain C over whole numbers.
class Handwritten {
 public:
  struct Row {
    std::array<std::string, 7> cells;
    std::int64_t note = 0;
  };

  /// Opens the database a second time, with the same durability as the module's connection.
  explicit Handwritten(const std::string& path);
  ~Handwritten();
  Handwritten(const Handwritten&) = delete;
  Handwritten& operator=(const Handwritten&) = delete;

  /// The agent's pending notes of fully collected invoices, as rows of text.
  std::vector<Row> list(int agent);
  /// Commission of a note in units of money (four places).
  std::int64_t commission(std::int64_t note);
  /// Stores a settlement of these notes in one transaction.
  void save(const std::vector<Row>& rows);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace korvantes::bench
