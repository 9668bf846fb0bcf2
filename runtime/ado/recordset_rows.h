// Internals of Recordset, for the files that implement it.
#pragma once

#include <string_view>
#include <vector>

#include "runtime/ado/recordset.h"

namespace korvantes::ado {

/// The rows, shared by all clones.
struct Recordset::Rows {
  FieldDefinitions definitions;
  std::vector<Variant> cells;  ///< row after row
  std::shared_ptr<RowWriter> writer;
  bool byHand = false;

  std::size_t width() const { return definitions->size(); }
  std::size_t count() const { return width() == 0 ? 0 : cells.size() / width(); }
  Variant& cell(std::size_t row, std::size_t field) { return cells[row * width() + field]; }
};

/// One cursor, shared by the copies of a handle.
struct Recordset::Cursor {
  enum class Place { Begin, Row, End };
  enum class Edit { None, Adding, Changing };

  std::shared_ptr<Rows> rows;
  std::function<void()> moveComplete;
  std::size_t row = 0;  ///< counts only where place is Row
  Place place = Place::End;
  Edit edit = Edit::None;
  bool open = false;
  std::vector<Variant> draft;  ///< the row being added or changed, until Update
  std::vector<bool> changed;   ///< which fields of the draft were set

  bool onRow() const;
  void requireOpen() const;
  void dropEdit();
  void putOnFirst();
  void moved() const;
};

/// The comparison that Find looks for.
struct Criterion {
  enum class Operator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };
  std::size_t field = 0;
  Operator comparison = Operator::Equal;
  Variant value;
};

/// Throws Error if the text is not a criterion or does not suit the field.
Criterion parseCriterion(std::string_view text, const std::vector<FieldDefinition>& fields);
bool matches(const Criterion& criterion, const Variant& value);

/// A value as the field stores it; see Field::Value.
Variant convertedTo(const FieldDefinition& field, Variant value);

}  // namespace korvantes::ado
