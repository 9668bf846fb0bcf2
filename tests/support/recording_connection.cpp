#include "tests/support/recording_connection.h"

namespace korvantes::support {

ado::Recordset RecordingConnection::Execute(std::string_view statement, long long* rowsAffected) {
  calls.emplace_back(statement);
  if (rowsAffected != nullptr) *rowsAffected = rowsChanged;
  if (answers_.empty()) return {};
  const auto answer = std::move(answers_.front());
  answers_.pop_front();
  if (const auto* error = std::get_if<ado::Error>(&answer)) throw *error;
  return std::get<ado::Recordset>(answer);
}

void RecordingConnection::BeginTrans() {
  calls.emplace_back("BeginTrans");
  inTransaction_ = true;
}

void RecordingConnection::CommitTrans() {
  calls.emplace_back("CommitTrans");
  inTransaction_ = false;
}

void RecordingConnection::RollbackTrans() {
  calls.emplace_back("RollbackTrans");
  inTransaction_ = false;
}

ado::Recordset RecordingConnection::OpenForUpdate(std::string_view statement) {
  return Execute(statement);
}

ado::Recordset resultOf(const std::vector<std::string>& names, std::vector<ado::Variant> cells) {
  auto fields = std::make_shared<std::vector<ado::FieldDefinition>>();
  for (const std::string& name : names) fields->push_back({.name = name});
  return {std::move(fields), std::move(cells)};
}

}  // namespace korvantes::support
