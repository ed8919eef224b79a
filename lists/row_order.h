// In which order the rows of a list are shown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "lists/found_list.h"

namespace tarnwick {

class RowOrder {
 public:
  // In the order in which they are found.
  RowOrder() = default;
  // By a column; rows of one value stay in the order of time. Rows that are found later come last,
  // until they are sorted anew; a column of time needs no sorting.
  RowOrder(const FoundList& list, std::size_t column, bool descending);

  // The row of the list that is shown as the index-th of `size`.
  std::size_t RowAt(std::size_t index, std::size_t size) const;

 private:
  std::vector<std::uint32_t> rows_;
  bool reversed_ = false;  // the order of time, backwards
};

}  // namespace tarnwick
