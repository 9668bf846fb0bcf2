#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/ado/variant.h"

namespace korvantes::ado {

/// Field types, with ADO's numbers.
enum class FieldType {
  Integer = 3,
  Double = 5,
  Currency = 6,
  Date = 7,
  Boolean = 11,
  Numeric = 131,
  VarChar = 200,
  LongVarBinary = 205,
};

/// Name, type and size of a field. The size of a text is in characters, 0 means unlimited; the
/// scale applies to exact decimals (4 for Currency).
struct FieldDefinition {
  std::string name;
  FieldType type = FieldType::VarChar;
  int size = 0;
  int scale = 0;
};

/// The fields of a result. Shared between a statement's compiled form and all its results, so that
/// small results copy no names.
using FieldDefinitions = std::shared_ptr<const std::vector<FieldDefinition>>;

/// Writes a changed row back to where it was fetched from. An engine passes one to a
/// recordset opened for update.
class RowWriter {
 public:
  virtual ~RowWriter() = default;
  /// Stores the changed fields, by name. Throws Error.
  virtual void write(const std::vector<std::pair<std::string, Variant>>& changes) = 0;
};

class Recordset;

/// One field of the current row. Valid as long as the recordset is.
class Field {
 public:
  const std::string& Name() const;
  const FieldDefinition& definition() const;
  /// Throws Error if there is no current row.
  const Variant& Value() const;
  /// Changes the current row: a row being added, a row of a recordset built by hand, or one opened
  /// for update. Text longer than the field's size is cut to it, by characters; a number or a date
  /// of another kind is converted to the field's type, Null is accepted everywhere. Throws
  /// ConversionError for a value that the type cannot hold, Error without a current row or on a
  /// result that cannot be changed. The change is kept by Update and dropped by CancelUpdate or by
  /// moving away; until then only this cursor sees it.
  void Value(Variant value);

 private:
  friend class Recordset;
  friend class Fields;
  Field(const Recordset& owner, std::size_t position) : owner_(&owner), position_(position) {}
  const Recordset* owner_;
  std::size_t position_;
};

/// The fields of a recordset.
class Fields {
 public:
  std::size_t Count() const;
  /// Adds a field to a recordset that is not open yet. Throws Error on an open one.
  void Append(const std::string& name, FieldType type, int size = 0);
  /// By position from 0, or by name, case-insensitively; the first of two fields with one name.
  /// Throws Error, naming the field, if there is none.
  Field operator()(std::size_t position) const;
  Field operator()(std::string_view name) const;

 private:
  friend class Recordset;
  explicit Fields(const Recordset& owner) : owner_(&owner) {}
  const Recordset* owner_;
};

/// The position of a row, valid in all clones of one recordset. Empty if there is no current row.
using Bookmark = std::optional<std::size_t>;

/// A scrollable cursor over rows held in memory, with an exact count.
///
/// A handle: copies share the cursor, as clients of ADO copy references. Clone returns a second
/// cursor over the same rows. A default-constructed recordset is closed and has no fields; it can
/// be built by hand (Fields().Append, Open, AddNew, Update). Positions are those of ADO: opening
/// puts the cursor on the first row; an empty recordset is at BOF and EOF together; moving before
/// the first or after the last row leaves the cursor there, one move further is an Error.
class Recordset {
 public:
  enum class Direction { Forward = 1, Backward = -1 };

  Recordset();
  /// A result: rows.size() is a multiple of the number of fields, row after row. It cannot be
  /// changed unless `writer` is given.
  Recordset(FieldDefinitions fields, std::vector<Variant> rows,
            std::shared_ptr<RowWriter> writer = nullptr);

  ado::Fields Fields() const { return ado::Fields(*this); }
  Field Fields(std::size_t position) const { return Fields()(position); }
  Field Fields(int position) const { return Fields()(static_cast<std::size_t>(position)); }
  Field Fields(std::string_view name) const { return Fields()(name); }
  Field Fields(const char* name) const { return Fields()(std::string_view(name)); }
  /// Value of a field of the current row, as Fields(name).Value().
  const Variant& Collect(std::string_view name) const { return Fields(name).Value(); }
  void Collect(std::string_view name, Variant value) { Fields(name).Value(std::move(value)); }

  void Open();
  void Close();
  bool isOpen() const;

  /// Number of rows, including those before the cursor; a new row counts once Update is called.
  /// Throws Error on a closed recordset, as does all that follows.
  std::size_t RecordCount() const;
  bool isBOF() const;
  bool isEOF() const;

  void MoveFirst();
  void MoveNext();
  void MovePrevious();
  void MoveLast();

  /// Searches from the current row on (plus `skip`), including that row; without a
  /// match the cursor is left at EOF (searching backward: at BOF). The criterion is one comparison
  /// "name = value" (also <, <=, >, >=, <>), the value a number with a point, a text or a date
  /// between single quotes (a date as dd/mm/yyyy). Null matches nothing. Throws Error for any
  /// other text and if the cursor has no row to start from; in an empty recordset it does
  /// nothing.
  void Find(std::string_view criterion, long skip = 0, Direction direction = Direction::Forward);

  ado::Bookmark Bookmark() const;
  /// Moves to the row; an empty bookmark or one of another recordset is an Error.
  void Bookmark(ado::Bookmark place);

  Recordset Clone() const;

  /// A new row, all Null, becomes current; it is kept by Update, and dropped by CancelUpdate or by
  /// moving away.
  void AddNew();
  void Update();
  void CancelUpdate();

  /// Called at the end of each move of this cursor, whatever caused it, even
  /// one that ended at BOF or EOF. An exception reaches the caller of the move.
  void onMoveComplete(std::function<void()> handler);

  /// A cell by position, without moving the cursor: what grids and exports read.
  const Variant& cell(std::size_t row, std::size_t field) const;
  const std::vector<FieldDefinition>& definitions() const;
  /// Position of the first field with that name, case-insensitive.
  std::optional<std::size_t> positionOf(std::string_view name) const;
  /// The current row, from 0; empty at BOF, at EOF and while a row is being added.
  std::optional<std::size_t> position() const;
  /// Makes a row current, from 0, with the move event.
  void moveTo(std::size_t row);

 private:
  friend class Field;
  friend class Fields;
  struct Rows;
  struct Cursor;
  std::shared_ptr<Cursor> cursor_;
};

}  // namespace korvantes::ado
