#include "src/hartley/recipe/table.h"

#include "gen/math/rows.h"

namespace xfm::hartley {
namespace {

// clang-format off
constexpr Row rows[] = {
  { 2, 2, 0, Design::forward, "2"},
  { 3, 6, 2, Design::forward, "3"},
  { 4, 8, 0, Design::forward, "4"},
  { 5, 16, 8, Design::forward, "5"},
  { 6, 18, 4, Design::forward, "3 x 2"},
  { 7, 30, 18, Design::forward, "7"},
  { 8, 26, 2, Design::forward, "4 * 2"},
  { 9, 40, 20, Design::forward, "3 * 3"},
  {10, 42, 16, Design::folded, "5 x 2"},
  {11, 70, 50, Design::forward, "11"},
  {12, 48, 8, Design::folded, "4 x 3"},
  {13, 92, 44, Design::folded, "R(2, F(3 x 2, 3 * 2), 3 x 2, 3 * 2)", Products::merged_in_pairs},
  {14, 74, 36, Design::folded, "7 x 2"},
  {15, 78, 34, Design::folded, "5 x 3"},
  {16, 72, 12, Design::forward, "4 * 4"},
  {17, 132, 54, Design::forward, "17"},
  {18, 98, 36, Design::folded, "9 x 2"},
  {19, 182, 108, Design::forward, "19"},
  {20, 104, 32, Design::folded, "4 x 5"},
  {21, 132, 68, Design::forward, "7 x 3"},
  {22, 162, 100, Design::forward, "2 x 11"},
  {23, 306, 242, Design::folded, "23"},
  {24, 126, 22, Design::forward, "3 x 4 * 2"},
  {25, 176, 112, Design::folded, "5 * 5"},
  {26, 206, 82, Design::forward, "13 x 2"},
  {27, 190, 100, Design::folded, "3 * 9"},
  {28, 176, 72, Design::folded, "7 x 4"},
  {29, 334, 210, Design::forward, "29"},
  {30, 186, 68, Design::folded, "2 x (5 x 3)"},
  {31, 346, 194, Design::folded, "31"},
  {32, 186, 42, Design::folded, "32"},
  {33, 300, 172, Design::folded, "R(2, 2 x 5, 5) x 3"},
  {34, 298, 108, Design::folded, "2 x 17"},
  {35, 262, 146, Design::folded, "7 x 5"},
  {36, 232, 72, Design::folded, "9 x 4"},
  {37, 438, 236, Design::folded, "R(15, 2 * (9 x 2), 9 x 2)", Products::unrounded},
  {38, 402, 216, Design::forward, "19 x 2"},
  {39, 348, 149, Design::forward, "13 x 3"},
  {40, 258, 74, Design::folded, "8 x 5"},
  {41, 484, 242, Design::forward, "R(7, 5 x 4 * 2, 5 x 4)"},
  {42, 306, 136, Design::folded, "7 x (3 x 2)"},
  {43, 574, 352, Design::folded, "R(3, 7 x (2 x 3), 7 x 3)"},
  {44, 400, 200, Design::folded, "R(2, 2 x 5, 5) x 4"},
  {45, 344, 162, Design::folded, "9 x 5"},
  {46, 658, 484, Design::folded, "2 x 23"},
  {47, 1306, 1058, Design::forward, "R(45, R(19, 2 x 11, R(6, 2 x 5, 5), R(8, 2 x 5, 5)) x 2, R(10, 2 * 11, 11), R(10, 2 * 11, 11))", Products::unrounded},
  {48, 316, 72, Design::folded, "3 x 16"},
  {49, 456, 324, Design::forward, "7 * 7"},
  {50, 402, 224, Design::forward, "5 * 5 x 2"},
  {51, 498, 196, Design::folded, "17 x 3"},
  {52, 464, 164, Design::forward, "13 x 4"},
  {53, 892, 450, Design::folded, "R(2, 2 * (13 x 2), 13 x 2)", Products::unrounded},
  {54, 434, 200, Design::folded, "2 x 3 * 9"},
  {55, 566, 338, Design::folded, "R(2, 2 x 5, 5) x 5"},
  {56, 422, 158, Design::folded, "7 x 8"},
  {57, 660, 362, Design::forward, "19 x 3"},
  {58, 726, 420, Design::forward, "2 x 29"},
  {59, 1398, 954, Design::forward, "R(6, R(15, 7 x 4, 7 x 2) x 2, R(8, 7 x 4, 7 x 2), R(26, 7 x 4, 7 x 2))", Products::unrounded},
  {60, 432, 136, Design::folded, "5 x (3 x 4)"},
  {61, 822, 415, Design::forward, "R(2, (3 x 5) x 4, 2 x (5 x 3))"},
  {62, 754, 388, Design::folded, "2 x 31"},
  {63, 550, 302, Design::forward, "7 x 9"},
  {64, 462, 134, Design::folded, "64"},
};

struct Plan {
  int length;
  const char* plan;
};
constexpr Plan plans[] = {
  { 4, "2 * 2"},
  { 8, "2 * 4"},
  { 9, "3 * 3"},
  {13, "R(2, 3 x 4, 3 x 2)"},
  {16, "2 * 8"},
  {17, "R(3, 4 * 4, 4 * 2, 8)"},
  {19, "R(14, 9 x 2, 9)"},
  {23, "R(7, 2 * 11, 11)"},
  {29, "R(10, 7 x 4, 7 x 2)"},
  {31, "R(3, 5 x (3 x 2), 3 x 5)"},
  {32, "2 * 16"},
  {64, "2 * 32"},
};
// clang-format on

}  // namespace

const Row& row(int length) { return gen::row_of(rows, length); }

const char* plan_of(int length) {
  const auto* const found = gen::find_row(plans, [&](const Plan& row) { return row.length == length; });
  return found == nullptr ? "" : found->plan;
}

}  // namespace xfm::hartley
