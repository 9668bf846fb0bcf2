#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "runtime/screen/control.h"

namespace korvantes::screen {

/// A list of rows in report view, each with a check box.
class ListView : public Control {
 public:
  explicit ListView(Form& form, std::string name, std::optional<int> index = std::nullopt);

  struct ColumnHeader {
    std::string Text;
    int Width = 1440;  ///< twips; 0 hides the column
    Alignment TextAlignment = Alignment::Left;
  };
  /// Text is column 0, SubItems the columns after it.
  struct ListItem {
    std::string Text;
    std::vector<std::string> SubItems;
    std::string Tag;
    bool Checked = false;
    /// Text of a column; empty if the row has none.
    const std::string& cell(std::size_t column) const;
  };
  enum class Order { Ascending = 0, Descending = 1 };

  /// Fixed when the form is made, before it is shown.
  std::vector<ColumnHeader> ColumnHeaders;

  /// Adds a row and returns it to be filled; the reference is valid until the rows are cleared.
  ListItem& Add(std::string text);
  void Clear();
  std::size_t Count() const { return items_.size(); }
  /// Row by position on the screen, from 0: in the order added, or sorted if Sorted is True.
  const ListItem& item(std::size_t row) const;
  /// Ticks or unticks by program, without an event.
  void Checked(std::size_t row, bool value);

  /// Column to sort by, direction, and whether to sort. Sorting compares the texts of the cells
  /// with ado::compareTexts; equal rows keep their order. It also applies to rows added later.
  Property<int> SortKey{*this, "SortKey", 0};
  Property<int> SortOrder{*this, "SortOrder", 0};
  Property<bool> Sorted{*this, "Sorted", false};
  /// The row with the cursor, from 0; -1 if there are no rows.
  Property<int> SelectedRow{*this, "SelectedRow", -1};

  /// The user ticked or unticked a row.
  std::function<void(const ListItem& item)> ItemCheck;
  /// The user clicked a heading; columns count from 1.
  std::function<void(int columnIndex)> ColumnClick;
  /// The user is about to edit the row text in place; setting cancel to anything but 0 refuses it.
  std::function<void(int& cancel)> BeforeLabelEdit;

 private:
  friend class UserInput;
  void propertyChanged(const PropertyBase& property) override;
  void sortIfNeeded() const;
  std::optional<std::size_t> placeOf(const ListItem& wanted) const;
  void rowsChanged();

  std::deque<ListItem> items_;
  mutable std::vector<std::size_t> order_;
  mutable bool orderStale_ = true;
};

}  // namespace korvantes::screen
