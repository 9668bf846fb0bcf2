#include "tests/support/faulty_connection.h"

#include <type_traits>

namespace korvantes::support {

void FaultyConnection::failAt(std::size_t call, ado::Error error, When when) {
  heal();
  failure_ = Failure{call, std::move(error), when};
}

void FaultyConnection::heal() {
  calls_.clear();
  failed_ = false;
  failure_.reset();
}

void FaultyConnection::fail() {
  failed_ = true;
  const ado::Error error = failure_->error;
  failure_.reset();
  throw error;
}

template <class Call>
auto FaultyConnection::counted(std::string_view name, Call call) {
  if (onCall) onCall(name);
  calls_.emplace_back(name);
  const bool due = failure_ && calls_.size() == failure_->call;
  if (due && failure_->when == When::Before) fail();
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    if (due) fail();
  } else {
    auto answer = call();
    if (due) fail();
    return answer;
  }
}

ado::Recordset FaultyConnection::Execute(std::string_view statement, long long* rowsAffected) {
  return counted(statement, [&] { return real_->Execute(statement, rowsAffected); });
}

void FaultyConnection::BeginTrans() {
  counted("BeginTrans", [&] { real_->BeginTrans(); });
}

void FaultyConnection::CommitTrans() {
  counted("CommitTrans", [&] { real_->CommitTrans(); });
}

void FaultyConnection::RollbackTrans() {
  if (rollbackRefusals-- > 0) throw ado::Error(14, "sin conexión");
  real_->RollbackTrans();
}

/// A row opened for update, whose writing can fail.
class FaultyConnection::Row : public ado::RowWriter {
 public:
  Row(FaultyConnection& owner, ado::Recordset real) : owner_(owner), real_(std::move(real)) {}
  void write(const std::vector<std::pair<std::string, ado::Variant>>& changes) override {
    owner_.counted("Update", [&] {
      for (const auto& [name, value] : changes) real_.Fields(name).Value(value);
      real_.Update();
    });
  }

 private:
  FaultyConnection& owner_;
  ado::Recordset real_;
};

ado::Recordset FaultyConnection::OpenForUpdate(std::string_view statement) {
  const ado::Recordset real = counted(statement, [&] { return real_->OpenForUpdate(statement); });
  if (!real.isOpen()) return real;
  std::vector<ado::Variant> cells;
  for (std::size_t row = 0; row < real.RecordCount(); ++row)
    for (std::size_t i = 0; i < real.Fields().Count(); ++i) cells.push_back(real.cell(row, i));
  return {std::make_shared<const std::vector<ado::FieldDefinition>>(real.definitions()),
          std::move(cells), std::make_shared<Row>(*this, real)};
}

}  // namespace korvantes::support
