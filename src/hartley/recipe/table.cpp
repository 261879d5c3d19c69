#include "src/hartley/recipe/table.h"

#include "gen/math/rows.h"

namespace xfm::hartley {
namespace {

// clang-format off
constexpr Row rows[] = {
  { 2, Input::none, {2}, Output::half, 0, 2, 0, Design::forward, "2"},
  { 3, Input::fold, {2, 3}, Output::conjugate, 0, 6, 2, Design::forward, "3"},
  { 4, Input::fold, {2, 4}, Output::conjugate, 0, 8, 0, Design::forward, "4"},
  { 5, Input::fold, {2, 4, 5}, Output::conjugate, 0, 16, 8, Design::forward, "5"},
  { 6, Input::fold, {3, 6}, Output::conjugate, 0, 18, 4, Design::forward, "3 x 2"},
  { 7, Input::fold, {2, 6, 7}, Output::conjugate, 0, 30, 18, Design::forward, "7"},
  { 8, Input::groups, {2, 4, 8}, Output::conjugate, 0, 26, 2, Design::forward, "4 * 2"},
  { 9, Input::groups, {3, 8, 9}, Output::conjugate, 0, 40, 20, Design::forward, "3 * 3"},
  {10, Input::fold, {2, 10}, Output::conjugate, 0, 42, 16, Design::folded, "5 x 2"},
  {11, Input::fold, {2, 10, 11}, Output::conjugate, 0, 70, 50, Design::forward, "11"},
  {12, Input::fold, {6, 12}, Output::half, 0, 48, 8, Design::folded, "4 x 3"},
  {13, Input::fold, {2, 6, 12, 13}, Output::conjugate, 0, 92, 44, Design::folded, "R(2, F(3 x 2, 3 * 2), 3 x 2, 3 * 2)", Products::merged_in_pairs},
  {14, Input::fold, {2, 14}, Output::conjugate, 0, 74, 36, Design::folded, "7 x 2"},
  {15, Input::fold, {2, 15}, Output::radix, 5, 78, 34, Design::folded, "5 x 3"},
  {16, Input::groups, {2, 4, 8, 16}, Output::conjugate, 0, 72, 12, Design::forward, "4 * 4"},
  {17, Input::fold, {2, 4, 8, 16, 17}, Output::conjugate, 0, 132, 54, Design::forward, "17"},
  {18, Input::fold, {2, 18}, Output::radix, 3, 98, 36, Design::folded, "9 x 2"},
  {19, Input::groups, {3, 9, 18, 19}, Output::conjugate, 0, 182, 108, Design::forward, "19"},
  {20, Input::fold, {10, 20}, Output::half, 0, 104, 32, Design::folded, "4 x 5"},
  {21, Input::groups, {7, 20, 21}, Output::conjugate, 0, 132, 68, Design::forward, "7 x 3"},
  {22, Input::groups, {2, 22}, Output::conjugate, 0, 162, 100, Design::forward, "2 x 11"},
  {23, Input::fold, {2, 22, 23}, Output::conjugate, 0, 306, 242, Design::folded, "23"},
  {24, Input::groups, {3, 6, 12, 24}, Output::conjugate, 0, 126, 22, Design::forward, "3 x 4 * 2"},
  {25, Input::fold, {2, 25}, Output::radix, 5, 176, 112, Design::folded, "5 * 5"},
  {26, Input::groups, {13, 26}, Output::conjugate, 0, 206, 82, Design::forward, "13 x 2"},
  {27, Input::fold, {2, 27}, Output::radix, 3, 190, 100, Design::folded, "3 * 9"},
  {28, Input::fold, {2, 4, 28}, Output::radix, 7, 176, 72, Design::folded, "7 x 4"},
  {29, Input::groups, {7, 14, 28, 29}, Output::conjugate, 0, 334, 210, Design::forward, "29"},
  {30, Input::fold, {15, 30}, Output::half, 0, 186, 68, Design::folded, "2 x (5 x 3)"},
  {31, Input::fold, {2, 6, 30, 31}, Output::radix, 5, 346, 194, Design::folded, "31"},
  {32, Input::fold, {16, 32}, Output::half, 0, 186, 42, Design::folded, "32"},
  {33, Input::fold, {2, 33}, Output::radix, 11, 300, 172, Design::folded, "R(2, 2 x 5, 5) x 3"},
  {34, Input::fold, {17, 34}, Output::half, 0, 298, 108, Design::folded, "2 x 17"},
  {35, Input::fold, {2, 35}, Output::radix, 7, 262, 146, Design::folded, "7 x 5"},
  {36, Input::fold, {2, 4, 36}, Output::radix, 3, 232, 72, Design::folded, "9 x 4"},
  {37, Input::fold, {2, 6, 18, 36, 37}, Output::conjugate, 0, 438, 236, Design::folded, "R(15, 2 * (9 x 2), 9 x 2)", Products::unrounded},
  {38, Input::groups, {19, 38}, Output::conjugate, 0, 402, 216, Design::forward, "19 x 2"},
  {39, Input::groups, {13, 38, 39}, Output::conjugate, 0, 348, 149, Design::forward, "13 x 3"},
  {40, Input::fold, {20, 40}, Output::half, 0, 258, 74, Design::folded, "8 x 5"},
  {41, Input::groups, {5, 10, 20, 40, 41}, Output::conjugate, 0, 484, 242, Design::forward, "R(7, 5 x 4 * 2, 5 x 4)"},
  {42, Input::fold, {2, 42}, Output::radix, 7, 306, 136, Design::folded, "7 x (3 x 2)"},
  {43, Input::fold, {2, 14, 42, 43}, Output::radix, 7, 574, 352, Design::folded, "R(3, 7 x (2 x 3), 7 x 3)"},
  {44, Input::fold, {2, 4, 44}, Output::radix, 11, 400, 200, Design::folded, "R(2, 2 x 5, 5) x 4"},
  {45, Input::fold, {2, 45}, Output::radix, 3, 344, 162, Design::folded, "9 x 5"},
  {46, Input::fold, {23, 46}, Output::half, 0, 658, 484, Design::folded, "2 x 23"},
  {47, Input::groups, {23, 46, 47}, Output::conjugate, 0, 1306, 1058, Design::forward, "R(45, R(19, 2 x 11, R(6, 2 x 5, 5), R(8, 2 x 5, 5)) x 2, R(10, 2 * 11, 11), R(10, 2 * 11, 11))", Products::unrounded},
  {48, Input::fold, {16, 48}, Output::radix, 3, 316, 72, Design::folded, "3 x 16"},
  {49, Input::groups, {7, 48, 49}, Output::conjugate, 0, 456, 324, Design::forward, "7 * 7"},
  {50, Input::groups, {5, 25, 50}, Output::conjugate, 0, 402, 224, Design::forward, "5 * 5 x 2"},
  {51, Input::fold, {2, 51}, Output::radix, 17, 498, 196, Design::folded, "17 x 3"},
  {52, Input::groups, {13, 26, 52}, Output::conjugate, 0, 464, 164, Design::forward, "13 x 4"},
  {53, Input::fold, {2, 26, 52, 53}, Output::conjugate, 0, 892, 450, Design::folded, "R(2, 2 * (13 x 2), 13 x 2)", Products::unrounded},
  {54, Input::fold, {27, 54}, Output::half, 0, 434, 200, Design::folded, "2 x 3 * 9"},
  {55, Input::fold, {2, 55}, Output::radix, 11, 566, 338, Design::folded, "R(2, 2 x 5, 5) x 5"},
  {56, Input::fold, {8, 56}, Output::radix, 7, 422, 158, Design::folded, "7 x 8"},
  {57, Input::groups, {19, 56, 57}, Output::conjugate, 0, 660, 362, Design::forward, "19 x 3"},
  {58, Input::groups, {2, 58}, Output::conjugate, 0, 726, 420, Design::forward, "2 x 29"},
  {59, Input::groups, {29, 58, 59}, Output::conjugate, 0, 1398, 954, Design::forward, "R(6, R(15, 7 x 4, 7 x 2) x 2, R(8, 7 x 4, 7 x 2), R(26, 7 x 4, 7 x 2))", Products::unrounded},
  {60, Input::fold, {2, 4, 60}, Output::radix, 5, 432, 136, Design::folded, "5 x (3 x 4)"},
  {61, Input::groups, {3, 15, 30, 60, 61}, Output::conjugate, 0, 822, 415, Design::forward, "R(2, (3 x 5) x 4, 2 x (5 x 3))"},
  {62, Input::fold, {31, 62}, Output::half, 0, 754, 388, Design::folded, "2 x 31"},
  {63, Input::groups, {7, 21, 62, 63}, Output::conjugate, 0, 550, 302, Design::forward, "7 x 9"},
  {64, Input::fold, {32, 64}, Output::half, 0, 462, 134, Design::folded, "64"},
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

std::span<const Row> table() { return rows; }

const Row& row(int length) { return gen::row_of(rows, length); }

const char* plan_of(int length) {
  const auto* const found = gen::find_row(plans, [&](const Plan& p) { return p.length == length; });
  return found == nullptr ? nullptr : found->plan;
}

}  // namespace xfm::hartley
