#include "runtime/screen/list_view.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "runtime/ado/text_order.h"
#include "runtime/screen/form.h"

namespace korvantes::screen {

ListView::ListView(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::ListView, std::move(name), index) {}

const std::string& ListView::ListItem::cell(std::size_t column) const {
  static const std::string kEmpty;
  if (column == 0) return Text;
  return column <= SubItems.size() ? SubItems[column - 1] : kEmpty;
}

ListView::ListItem& ListView::Add(std::string text) {
  ListItem& added = items_.emplace_back();
  added.Text = std::move(text);
  orderStale_ = true;
  rowsChanged();
  if (SelectedRow() < 0) SelectedRow = 0;
  return added;
}

void ListView::Clear() {
  items_.clear();
  orderStale_ = true;
  rowsChanged();
  SelectedRow = -1;
}

const ListView::ListItem& ListView::item(std::size_t row) const {
  if (row >= items_.size())
    throw std::out_of_range("La lista " + identity() + " no tiene la fila " +
                            std::to_string(row + 1));
  sortIfNeeded();
  return items_[order_[row]];
}

void ListView::Checked(std::size_t row, bool value) {
  item(row);
  bool& checked = items_[order_[row]].Checked;
  if (checked == value) return;
  checked = value;
  rowsChanged();
}

void ListView::propertyChanged(const PropertyBase& property) {
  const bool reorders = &property == &SortKey || &property == &SortOrder || &property == &Sorted;
  if (reorders) orderStale_ = true;
  Control::propertyChanged(property);
  if (reorders) rowsChanged();
}

void ListView::sortIfNeeded() const {
  if (!orderStale_) return;
  order_.resize(items_.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  orderStale_ = false;
  if (!Sorted()) return;
  // With a key that is not a column, all rows are equal.
  const auto column = static_cast<std::size_t>(SortKey());
  const bool descending = SortOrder() == static_cast<int>(Order::Descending);
  std::stable_sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
    const int order = ado::compareTexts(items_[a].cell(column), items_[b].cell(column));
    return descending ? order > 0 : order < 0;
  });
}

std::optional<std::size_t> ListView::placeOf(const ListItem& wanted) const {
  for (std::size_t row = 0; row < items_.size(); ++row)
    if (&item(row) == &wanted) return row;
  return std::nullopt;
}

void ListView::rowsChanged() {
  if (FormObserver* face = form().observer()) face->rowsChanged(*this);
}

}  // namespace korvantes::screen
