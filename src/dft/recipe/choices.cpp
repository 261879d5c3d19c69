#include "src/dft/recipe/choices.h"

#include <algorithm>

#include "gen/math/number.h"
#include "src/dft/recipe/table.h"

namespace xfm::dft {
namespace {

using gen::Precision;

// Roots whose rounding errors stay lowest in binary32, found by trying all; elsewhere the smallest root
// serves.
struct ChosenRoot {
  int length, prime;
  gen::Root root;
};
constexpr ChosenRoot roots_single[] = {
    {19, 19, {13, 0}}, {23, 23, {7, 0}}, {34, 17, {3, 3}},   {37, 37, {13, 1}},
    {38, 19, {10, 0}}, {41, 41, {7, 3}}, {43, 43, {3, 19}},  {51, 17, {3, 3}},
    {53, 53, {8, 11}}, {57, 19, {3, 0}}, {61, 61, {18, 10}},
};

// Kernels that were measured to gain some three percent by another order than that of the others: large
// networks spill less in the order of bisection.
struct ChosenOrder {
  int length;
  Precision precision;
  gen::Order order;
};
constexpr ChosenOrder orders[] = {
    {5, Precision::binary32, gen::Order::bisection},
    {24, Precision::binary32, gen::Order::bisection},
    {58, Precision::binary32, gen::Order::bisection},
    {59, Precision::binary32, gen::Order::bisection},
    {16, Precision::binary64, gen::Order::earliest_start},
    {17, Precision::binary64, gen::Order::earliest_start},
    {43, Precision::binary64, gen::Order::bisection},
    {46, Precision::binary64, gen::Order::bisection},
    {47, Precision::binary64, gen::Order::bisection},
    {53, Precision::binary64, gen::Order::bisection},
    {54, Precision::binary64, gen::Order::bisection},
    {59, Precision::binary64, gen::Order::bisection},
    {61, Precision::binary64, gen::Order::bisection},
    {62, Precision::binary64, gen::Order::bisection},
};

}  // namespace

const char* Choices::tree(int length) const {
  const Row& of = row(length);
  return precision_ == Precision::binary32 ? of.binary32.tree : of.binary64.tree;
}

Five Choices::five(int index, bool real, bool transposed) const {
  if (precision_ == Precision::binary32) {
    if (length_ == 5) return Five::outer_first;
    return length_ == 62 && !transposed ? Five::six_products : Five::inner_first;
  }
  switch (length_) {
    case 10:
      return Five::six_products;
    case 35:
      return index < 2 ? Five::five_products : Five::six_products;
    case 41:
    case 50:
    case 60:
      return real ? Five::six_products : Five::outer_first;
    default:
      return Five::outer_first;
  }
}

gen::Order Choices::order() const {
  const auto chosen = std::find_if(std::begin(orders), std::end(orders), [&](const ChosenOrder& of) {
    return of.length == length_ && of.precision == precision_;
  });
  return chosen == std::end(orders) ? gen::Order::windowed : chosen->order;
}

gen::Root Choices::root(int prime) const {
  const auto chosen =
      std::find_if(std::begin(roots_single), std::end(roots_single),
                   [&](const ChosenRoot& r) { return r.length == length_ && r.prime == prime; });
  if (precision_ == Precision::binary32 && chosen != std::end(roots_single)) return chosen->root;
  return {gen::smallest_primitive_root(prime), 0};
}

}  // namespace xfm::dft
