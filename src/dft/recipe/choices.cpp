#include <functional>
#include <limits>

#include "gen/math/number.h"
#include "gen/math/rows.h"
#include "src/dft/recipe/table.h"

namespace xfm::dft {
namespace {

using gen::Five;
using gen::Precision;
using gen::Rounding;

constexpr auto binary32 = Precision::binary32, binary64 = Precision::binary64;

// Numbers that stand for a block. Any other number is a prime, transformed by Rader's algorithm around
// the row of one less.
constexpr int blocks[] = {2, 3, 4, 5, 7, 11};

// Binary32 kernels too short for lanes.
struct Scalar {
  int length;
  Rounding rounding;
};
constexpr Scalar scalars[] = {
    {2, Rounding::each}, {3, Rounding::combination}, {4, Rounding::each}, {5, Rounding::combination}};

// Kernels that the recipe gives the baseline's lanes on every target; tools/lanes.def has some of them
// paired. At 59 zeros of the chirp products come out with other signs if whole instances fill more lanes; the
// others fill them badly, which is measurably slower.
constexpr int narrow_everywhere[] = {6, 7, 10, 11, 13, 14, 15, 22, 23, 34, 47, 50, 59, 62};

// Length-5 blocks in another form than the default; the first row that fits applies.
constexpr int all = std::numeric_limits<int>::max();
struct ChosenFive {
  int length;
  Precision precision;
  Five form;
  bool of_complex_too = true;     ///< complex sequences, not only real ones
  bool of_transposed_too = true;  ///< also those that run from outputs to inputs
  int instances = all;            ///< only the first so many of a stage
};
constexpr ChosenFive fives[] = {
    {5, binary32, Five::outer_first},          {62, binary32, Five::six_products, true, false},
    {10, binary64, Five::six_products},        {35, binary64, Five::five_products, true, true, 2},
    {35, binary64, Five::six_products},        {41, binary64, Five::six_products, false},
    {50, binary64, Five::six_products, false}, {60, binary64, Five::six_products, false},
};

// The roots with the lowest rounding errors in binary32, found by trying all. Other kernels take the smallest
// root.
struct ChosenRoot {
  int length, prime;
  gen::Root root;
};
constexpr ChosenRoot roots_binary32[] = {
    {19, 19, {13, 0}}, {23, 23, {7, 0}}, {34, 17, {3, 3}},   {37, 37, {13, 1}},
    {38, 19, {10, 0}}, {41, 41, {7, 3}}, {43, 43, {3, 19}},  {51, 17, {3, 3}},
    {53, 53, {8, 11}}, {57, 19, {3, 0}}, {61, 61, {18, 10}},
};

}  // namespace

gen::Tree Choices::spelled_out(const gen::Tree& tree) const {
  return gen::spelled_out(tree, [&](int number) -> std::string {
    if (gen::find_row(blocks, [&](int block) { return block == number; }) != nullptr) return "";
    return std::string("RS(") + breakdown(precision, number - 1).tree + ")";
  });
}

std::optional<Rounding> Choices::scalar() const {
  const auto* const found = gen::find_row(scalars, [&](const Scalar& row) { return row.length == length; });
  return found == nullptr ? std::nullopt : std::optional(found->rounding);
}

bool Choices::narrow() const {
  return gen::find_row(narrow_everywhere, [&](int narrow) { return narrow == length; }) != nullptr;
}

gen::Choices Choices::open() const {
  return {std::bind_front(&Choices::root, *this), std::bind_front(&Choices::five, *this)};
}

gen::Root Choices::root(int prime) const {
  const auto* const found = gen::find_row(roots_binary32, [&](const ChosenRoot& row) {
    return precision == binary32 && row.length == length && row.prime == prime;
  });
  return found == nullptr ? gen::Root{gen::smallest_primitive_root(prime), 0} : found->root;
}

Five Choices::five(bool real, int instance, bool transposed) const {
  const auto* const found = gen::find_row(fives, [&](const ChosenFive& row) {
    return row.length == length && row.precision == precision && (real || row.of_complex_too) &&
           (!transposed || row.of_transposed_too) && instance < row.instances;
  });
  if (found != nullptr) return found->form;
  return precision == binary32 ? Five::inner_first : Five::outer_first;
}

}  // namespace xfm::dft
