// N controls of one kind that share a name: "lblTime(0)", "lblTime(1)". Further arguments go to
// each of them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace tarnwick {

template <class T, std::size_t N>
class ControlArray {
 public:
  template <class Container, class... Args>
  ControlArray(Container& container, const std::string& name, Args&... args)
      : ControlArray(std::make_index_sequence<N>(), container, name, args...) {}

  T& operator[](std::size_t index) { return items_[index]; }
  const T& operator[](std::size_t index) const { return items_[index]; }

  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

 private:
  template <std::size_t... I, class Container, class... Args>
  ControlArray(std::index_sequence<I...> /*indexes*/, Container& container, const std::string& name,
               Args&... args)
      : items_{T(container, name + "(" + std::to_string(I) + ")", args...)...} {}

  std::array<T, N> items_;
};

}  // namespace tarnwick
