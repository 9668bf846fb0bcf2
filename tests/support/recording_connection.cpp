#include "tests/support/recording_connection.h"

namespace korvantes::support {

ado::Recordset RecordingConnection::Execute(std::string_view statement, long long* rowsAffected) {
  calls.emplace_back(statement);
  if (rowsAffected != nullptr) *rowsAffected = 1;
  if (answers_.empty()) return {};
  const auto answer = std::move(answers_.front());
  answers_.pop_front();
  if (const auto* error = std::get_if<ado::Error>(&answer)) throw *error;
  return std::get<ado::Recordset>(answer);
}

ado::Recordset resultOf(const std::vector<std::string>& names, std::vector<ado::Variant> cells) {
  auto fields = std::make_shared<std::vector<ado::FieldDefinition>>();
  for (const std::string& name : names) fields->push_back({.name = name});
  return {std::move(fields), std::move(cells)};
}

}  // namespace korvantes::support
