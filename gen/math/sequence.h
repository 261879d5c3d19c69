// A vector indexed by int, because formulas subtract, negate and reduce their indices.
#pragma once

#include <type_traits>
#include <vector>

namespace xfm::gen {

template <class T>
class Sequence : public std::vector<T> {
  using Base = std::vector<T>;

 public:
  using Base::Base;
  explicit Sequence(int size, const T& value = T()) : Base(static_cast<std::size_t>(size), value) {}

  int size() const { return static_cast<int>(Base::size()); }
  decltype(auto) operator[](int i) { return Base::operator[](static_cast<std::size_t>(i)); }
  decltype(auto) operator[](int i) const { return Base::operator[](static_cast<std::size_t>(i)); }
};

/// The sequence of f(0), f(1), .., f(size - 1).
template <class F>
auto tabulated(int size, F f) {
  Sequence<std::decay_t<decltype(f(0))>> all;
  for (int i = 0; i < size; ++i) all.push_back(f(i));
  return all;
}

}  // namespace xfm::gen
