// A vector indexed by int, because formulas subtract, negate and reduce their indices.
#pragma once

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

}  // namespace xfm::gen
