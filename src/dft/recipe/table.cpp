#include "src/dft/recipe/table.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace xfm::dft {
namespace {

// clang-format off
constexpr Row rows[] = {
  { 2, {"2", 4, 0},                            {"2", 4, 0}},
  { 3, {"3", 12, 4},                           {"3", 12, 4}},
  { 4, {"2,2", 16, 0},                         {"2,2", 16, 0}},
  { 5, {"5", 32, 16},                          {"5", 32, 16}},
  { 6, {"PFA(2,3)", 36, 8},                    {"PFA(2,3)", 36, 8}},
  { 7, {"R(PFA(2,3))", 84, 40},                {"D(7)", 60, 36}},
  { 8, {"CT(4,2)", 52, 12},                    {"SR(8)", 52, 4}},
  { 9, {"CT(3,3)", 88, 54},                    {"CT(3,3)", 80, 40}},
  {10, {"PFA(5,2)", 84, 32},                   {"PFA(5,2)", 84, 24}},
  {12, {"PFA(4,3)", 96, 16},                   {"PFA(3,4)", 96, 16}},
  {16, {"CT(4,4)", 144, 40},                   {"SR(16)", 144, 24}},
};
// clang-format on

}  // namespace

std::span<const Row> table() { return rows; }

const Row& row(int length) {
  const auto found =
      std::find_if(std::begin(rows), std::end(rows), [&](const Row& r) { return r.length == length; });
  if (found == std::end(rows)) throw std::out_of_range("no breakdown of length " + std::to_string(length));
  return *found;
}

}  // namespace xfm::dft
