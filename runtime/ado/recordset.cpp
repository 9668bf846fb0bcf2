#include "runtime/ado/recordset.h"

#include <limits>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset_rows.h"
#include "runtime/ado/text_order.h"

namespace korvantes::ado {

namespace {

// ADO's numbers for these failures.
constexpr long kNoCurrentRow = 3021;
constexpr long kReadOnly = 3251;
constexpr long kNoSuchField = 3265;
constexpr long kFieldTwice = 3367;
constexpr long kClosed = 3704;
constexpr long kOpen = 3705;

[[noreturn]] void noCurrentRow() {
  throw Error(kNoCurrentRow,
              "No hay ningún registro actual: la lista está vacía, o se ha pasado del primero o "
              "del último");
}

}  // namespace

// ---- Fields ----

std::size_t Fields::Count() const {
  return owner_->cursor_->rows->definitions->size();
}

void Fields::Append(const std::string& name, FieldType type, int size) {
  const auto& cursor = *owner_->cursor_;
  if (cursor.open || !cursor.rows->byHand) {
    throw Error(kOpen, "No se pueden añadir campos a una lista de registros abierta");
  }
  auto definitions = *cursor.rows->definitions;
  for (const auto& definition : definitions) {
    if (sameName(definition.name, name)) throw Error(kFieldTwice, "El campo ya existe: " + name);
  }
  const bool exact = type == FieldType::Currency || type == FieldType::Numeric;
  definitions.push_back({name, type, size, exact ? Decimal::kMoneyScale : 0});
  cursor.rows->definitions =
      std::make_shared<const std::vector<FieldDefinition>>(std::move(definitions));
}

Field Fields::operator()(std::size_t position) const {
  if (position >= Count()) {
    throw Error(kNoSuchField, "No existe el campo número " + std::to_string(position));
  }
  return {*owner_, position};
}

Field Fields::operator()(std::string_view name) const {
  if (const auto position = owner_->positionOf(name)) return {*owner_, *position};
  throw Error(kNoSuchField, "No existe el campo " + std::string(name));
}

// ---- Field ----

const std::string& Field::Name() const {
  return definition().name;
}

const FieldDefinition& Field::definition() const {
  return (*owner_->cursor_->rows->definitions)[position_];
}

const Variant& Field::Value() const {
  const auto& cursor = *owner_->cursor_;
  cursor.requireOpen();
  if (cursor.edit != Recordset::Cursor::Edit::None) return cursor.draft[position_];
  if (!cursor.onRow()) noCurrentRow();
  return cursor.rows->cell(cursor.row, position_);
}

void Field::Value(Variant value) {
  using Edit = Recordset::Cursor::Edit;
  auto& cursor = *owner_->cursor_;
  cursor.requireOpen();
  if (!cursor.rows->byHand && !cursor.rows->writer) {
    throw Error(kReadOnly, "La lista de registros es de solo lectura");
  }
  Variant fitting = convertedTo(definition(), std::move(value));
  if (cursor.edit == Edit::None) {
    if (!cursor.onRow()) noCurrentRow();
    // The writer finds the row that was fetched for it, which is the first.
    if (cursor.rows->writer && cursor.row != 0) {
      throw Error(kReadOnly, "Solo se puede modificar el primer registro");
    }
    cursor.draft.clear();
    for (std::size_t i = 0; i < cursor.rows->width(); ++i) {
      cursor.draft.push_back(cursor.rows->cell(cursor.row, i));
    }
    cursor.edit = Edit::Changing;
    cursor.changed.assign(cursor.draft.size(), false);
  }
  cursor.draft[position_] = std::move(fitting);
  cursor.changed[position_] = true;
}

// ---- Cursor ----

bool Recordset::Cursor::onRow() const {
  return place == Place::Row && row < rows->count();
}

void Recordset::Cursor::requireOpen() const {
  if (!open) throw Error(kClosed, "La lista de registros está cerrada");
}

void Recordset::Cursor::dropEdit() {
  edit = Edit::None;
  draft.clear();
}

void Recordset::Cursor::putOnFirst() {
  row = 0;
  place = rows->count() == 0 ? Place::End : Place::Row;
}

void Recordset::Cursor::moved() const {
  // A copy: the handler may replace or remove itself while it runs.
  if (const auto handler = moveComplete) handler();
}

// ---- Recordset ----

Recordset::Recordset() : cursor_(std::make_shared<Cursor>()) {
  static const FieldDefinitions kNone = std::make_shared<const std::vector<FieldDefinition>>();
  cursor_->rows = std::make_shared<Rows>(Rows{kNone, {}, nullptr, true});
}

Recordset::Recordset(FieldDefinitions fields, std::vector<Variant> rows,
                     std::shared_ptr<RowWriter> writer)
    : cursor_(std::make_shared<Cursor>()) {
  cursor_->rows =
      std::make_shared<Rows>(Rows{std::move(fields), std::move(rows), std::move(writer), false});
  cursor_->open = true;
  cursor_->putOnFirst();
}

void Recordset::Open() {
  if (cursor_->open) throw Error(kOpen, "La lista de registros ya está abierta");
  if (!cursor_->rows->byHand || Fields().Count() == 0) {
    throw Error(kNoSuchField, "La lista de registros no tiene campos");
  }
  cursor_->open = true;
  cursor_->putOnFirst();
}

void Recordset::Close() {
  cursor_->dropEdit();
  cursor_->open = false;
  // Clones keep the rows; a closed recordset built by hand reopens empty.
  const auto& rows = *cursor_->rows;
  cursor_->rows = std::make_shared<Rows>(Rows{rows.definitions, {}, nullptr, rows.byHand});
}

bool Recordset::isOpen() const {
  return cursor_->open;
}

std::size_t Recordset::RecordCount() const {
  cursor_->requireOpen();
  return cursor_->rows->count();
}

bool Recordset::isBOF() const {
  cursor_->requireOpen();
  if (cursor_->edit == Cursor::Edit::Adding) return false;
  return cursor_->place == Cursor::Place::Begin || cursor_->rows->count() == 0;
}

bool Recordset::isEOF() const {
  cursor_->requireOpen();
  if (cursor_->edit == Cursor::Edit::Adding) return false;
  return cursor_->place == Cursor::Place::End || cursor_->rows->count() == 0;
}

void Recordset::MoveFirst() {
  cursor_->requireOpen();
  cursor_->dropEdit();
  if (cursor_->rows->count() == 0) noCurrentRow();
  cursor_->putOnFirst();
  cursor_->moved();
}

void Recordset::MoveNext() {
  cursor_->requireOpen();
  cursor_->dropEdit();
  if (isEOF()) noCurrentRow();
  if (cursor_->place == Cursor::Place::Begin) {
    cursor_->putOnFirst();
  } else if (++cursor_->row >= cursor_->rows->count()) {
    cursor_->place = Cursor::Place::End;
  }
  cursor_->moved();
}

void Recordset::MovePrevious() {
  cursor_->requireOpen();
  cursor_->dropEdit();
  if (isBOF()) noCurrentRow();
  if (cursor_->place == Cursor::Place::End) {
    cursor_->place = Cursor::Place::Row;
    cursor_->row = cursor_->rows->count() - 1;
  } else if (cursor_->row == 0) {
    cursor_->place = Cursor::Place::Begin;
  } else {
    --cursor_->row;
  }
  cursor_->moved();
}

void Recordset::MoveLast() {
  cursor_->requireOpen();
  cursor_->dropEdit();
  if (cursor_->rows->count() == 0) noCurrentRow();
  moveTo(cursor_->rows->count() - 1);
}

void Recordset::Find(std::string_view criterion, long skip, Direction direction) {
  cursor_->requireOpen();
  cursor_->dropEdit();
  const Criterion wanted = parseCriterion(criterion, definitions());
  const std::size_t count = cursor_->rows->count();
  if (count == 0) return;
  if (!cursor_->onRow()) noCurrentRow();
  const bool forward = direction == Direction::Forward;
  // In signed steps, so that a start before the first row shows; counts never come near the limit.
  long at = static_cast<long>(cursor_->row);
  const long end = static_cast<long>(count);
  constexpr long kFurthest = std::numeric_limits<long>::max() / 4;
  skip = skip > kFurthest ? kFurthest : (skip < -kFurthest ? -kFurthest : skip);
  for (at += forward ? skip : -skip; at >= 0 && at < end; at += forward ? 1 : -1) {
    const auto row = static_cast<std::size_t>(at);
    if (matches(wanted, cursor_->rows->cell(row, wanted.field))) {
      moveTo(row);
      return;
    }
  }
  cursor_->place = forward ? Cursor::Place::End : Cursor::Place::Begin;
  cursor_->moved();
}

ado::Bookmark Recordset::Bookmark() const {
  return position();
}

void Recordset::Bookmark(ado::Bookmark place) {
  cursor_->requireOpen();
  if (!place) noCurrentRow();
  moveTo(*place);
}

Recordset Recordset::Clone() const {
  cursor_->requireOpen();
  Recordset clone;
  clone.cursor_->rows = cursor_->rows;
  clone.cursor_->open = true;
  clone.cursor_->putOnFirst();
  return clone;
}

void Recordset::AddNew() {
  cursor_->requireOpen();
  if (!cursor_->rows->byHand) {
    throw Error(kReadOnly, "No se pueden añadir registros a este conjunto");
  }
  cursor_->edit = Cursor::Edit::Adding;
  cursor_->draft.assign(cursor_->rows->width(), Variant());
  cursor_->changed.assign(cursor_->draft.size(), false);
  cursor_->moved();
}

void Recordset::Update() {
  cursor_->requireOpen();
  auto& cursor = *cursor_;
  auto& rows = *cursor.rows;
  if (cursor.edit == Cursor::Edit::None) return;
  if (cursor.edit == Cursor::Edit::Adding) {
    for (Variant& value : cursor.draft) rows.cells.push_back(std::move(value));
    cursor.row = rows.count() - 1;
    cursor.place = Cursor::Place::Row;
  } else {
    std::vector<std::pair<std::string, Variant>> changes;
    for (std::size_t i = 0; i < cursor.draft.size(); ++i) {
      if (cursor.changed[i]) changes.emplace_back((*rows.definitions)[i].name, cursor.draft[i]);
    }
    // If this throws, the edit is kept and can be retried.
    if (rows.writer) rows.writer->write(changes);
    for (std::size_t i = 0; i < cursor.draft.size(); ++i) {
      if (cursor.changed[i]) rows.cell(cursor.row, i) = std::move(cursor.draft[i]);
    }
  }
  cursor.dropEdit();
}

void Recordset::CancelUpdate() {
  cursor_->requireOpen();
  cursor_->dropEdit();
}

void Recordset::onMoveComplete(std::function<void()> handler) {
  cursor_->moveComplete = std::move(handler);
}

const Variant& Recordset::cell(std::size_t row, std::size_t field) const {
  cursor_->requireOpen();
  auto& rows = *cursor_->rows;
  if (row >= rows.count()) noCurrentRow();
  if (field >= rows.width()) Fields()(field);  // throws
  return rows.cell(row, field);
}

std::optional<std::size_t> Recordset::positionOf(std::string_view name) const {
  const auto& definitions = *cursor_->rows->definitions;
  for (std::size_t i = 0; i < definitions.size(); ++i)
    if (sameName(definitions[i].name, name)) return i;
  return std::nullopt;
}

const std::vector<FieldDefinition>& Recordset::definitions() const {
  cursor_->requireOpen();
  return *cursor_->rows->definitions;
}

std::optional<std::size_t> Recordset::position() const {
  cursor_->requireOpen();
  if (cursor_->edit == Cursor::Edit::Adding || !cursor_->onRow()) return std::nullopt;
  return cursor_->row;
}

void Recordset::moveTo(std::size_t row) {
  cursor_->requireOpen();
  if (row >= cursor_->rows->count()) noCurrentRow();
  cursor_->dropEdit();
  cursor_->row = row;
  cursor_->place = Cursor::Place::Row;
  cursor_->moved();
}

}  // namespace korvantes::ado
