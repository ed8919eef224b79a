#include "lists/row_order.h"

#include <algorithm>
#include <numeric>

namespace tarnwick {

RowOrder::RowOrder(const FoundList& list, std::size_t column, bool descending) {
  if (list.Columns().at(column).in_time) {
    reversed_ = descending;
    return;
  }
  std::vector<double> keys(list.Size());
  for (std::size_t row = 0; row < keys.size(); ++row) keys[row] = list.SortKey(row, column);
  rows_.resize(keys.size());
  std::iota(rows_.begin(), rows_.end(), 0U);
  std::ranges::stable_sort(rows_, [&](std::uint32_t a, std::uint32_t b) {
    return descending ? keys[a] > keys[b] : keys[a] < keys[b];
  });
}

std::size_t RowOrder::RowAt(std::size_t index, std::size_t size) const {
  if (reversed_) return size - 1 - index;
  return index < rows_.size() ? rows_[index] : index;
}

}  // namespace tarnwick
