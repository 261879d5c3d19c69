#include "src/real/recipe/table.h"

#include "gen/math/rows.h"

namespace xfm::real {
namespace {

// clang-format off
constexpr Row rows[] = {
  { 2, {"2", 2, 0},                 {"2", 2, 0}},
  { 3, {"3", 5, 2},                 {"3", 4, 3}},
  { 4, {"2 * 2", 7, 0},             {"2 * 2", 6, 2}},
  { 5, {"5", 13, 8},               {"5", 12, 12}},
  { 6, {"3 x 2", 15, 4},           {"2 x 3", 14, 8}},
  { 7, {"7", 25, 18},               {"7", 24, 24}},
  { 8, {"2 * 2 * 2", 23, 2},       {"2 * 2 * 2", 20, 8}},
  { 9, {"3 * 3", 35, 20},           {"3 * 3", 32, 25}},
  {10, {"5 x 2", 37, 16},           {"2 x 5", 34, 24}},
  {11, {"11", 61, 50},              {"R(2, 10)", 68, 60}},
  {12, {"4 x 3", 41, 8},           {"3 x 4", 38, 16}},
  {13, {"R(2, 12)", 80, 41},        {"R(2, 12)", 80, 56}},
  {14, {"2 x 7", 65, 36},           {"2 x 7", 62, 48}},
  {15, {"3 x 5", 67, 34},           {"3 x 5", 64, 47}},
  {16, {"4 * 4", 64, 12},           {"2 * 2 * 2 * 2", 58, 26}},
  {17, {"R(3, 16)", 121, 54},       {"R(3, 16)", 116, 68}},
  {18, {"2 x 3 * 3", 86, 40},       {"2 x 3 * 3", 82, 52}},
  {19, {"R(14, 18)", 168, 108},     {"R(14, 18)", 164, 128}},
  {20, {"5 x 4", 91, 32},           {"5 x 4", 86, 50}},
  {21, {"7 x 3", 118, 68},          {"3 x 7", 112, 87}},
  {22, {"2 x 11", 147, 100},        {"11 x 2", 158, 120}},
  {23, {"R(7, 22)", 304, 242},      {"R(7, 22)", 284, 264}},
  {24, {"3 x 8", 109, 22},          {"8 x 3", 104, 44}},
  {25, {"5 * 5", 158, 112},         {"5 * 5", 152, 136}},
  {26, {"13 x 2", 189, 82},        {"2 x 13", 186, 112}},
  {27, {"3 * 3 * 3", 172, 110},     {"3 * 3 * 3", 164, 125}},
  {28, {"4 x 7", 157, 72},         {"4 x 7", 150, 98}},
  {29, {"R(10, 28)", 314, 210},     {"R(10, 28)", 306, 238}},
  {30, {"5 x 3 x 2", 167, 68},      {"3 x 5 x 2", 158, 94}},
  {31, {"R(3, 30)", 322, 192},      {"R(3, 30)", 316, 224}},
  {32, {"8 * 4", 168, 44},          {"2 * 2 * 2 * 2 * 2", 156, 72}},
  {33, {"11 x 3", 252, 172},        {"3 x 11", 268, 203}},
  {34, {"2 x 17", 274, 108},        {"17 x 2", 266, 136}},
  {35, {"7 x 5", 236, 146},         {"5 x 7", 228, 180}},
  {36, {"3 * 3 x 4", 208, 80},     {"4 x 3 * 3", 198, 106}},
  {37, {"R(15, 36)", 408, 228},     {"R(15, 36)", 402, 272}},
  {38, {"19 x 2", 378, 216},        {"2 x 19", 366, 256}},
  {39, {"13 x 3", 321, 149},        {"13 x 3", 308, 180}},
  {40, {"8 x 5", 231, 74},         {"5 x 8", 220, 112}},
  {41, {"R(7, 40)", 453, 242},      {"R(7, 40)", 444, 282}},
  {42, {"7 x 3 x 2", 276, 136},     {"2 x 3 x 7", 266, 176}},
  {43, {"R(3, 42)", 541, 352},      {"R(3, 42)", 532, 394}},
  {44, {"11 x 4", 337, 200},        {"4 x 11", 358, 242}},
  {45, {"5 x 3 * 3", 311, 172},     {"5 x 3 * 3", 300, 206}},
  {46, {"2 x 23", 657, 484},        {"23 x 2", 614, 528}},
  {47, {"R(45, 46)", 1269, 1058},   {"R(45, 46)", 1260, 1104}},
  {48, {"16 x 3", 280, 68},        {"16 x 3", 270, 118}},
  {49, {"7 * 7", 419, 324},         {"7 * 7", 408, 372}},
  {50, {"5 * 5 x 2", 372, 224},     {"5 * 5 x 2", 354, 272}},
  {51, {"17 x 3", 464, 196},        {"3 x 17", 448, 245}},
  {52, {"13 x 4", 428, 164},        {"13 x 4", 414, 210}},
  {53, {"R(2, 52)", 858, 456},      {"R(2, 52)", 840, 502}},
  {54, {"2 x 3 * 3 * 3", 395, 220}, {"3 * 3 * 3 x 2", 382, 250}},
  {55, {"11 x 5", 486, 338},        {"5 x 11", 512, 392}},
  {56, {"7 x 8", 382, 158},         {"8 x 7", 368, 212}},
  {57, {"19 x 3", 620, 362},        {"3 x 19", 604, 423}},
  {58, {"2 x 29", 684, 420},        {"29 x 2", 670, 476}},
  {59, {"R(10, 58)", 1350, 954},   {"R(10, 58)", 1340, 1012}},
  {60, {"3 x 5 x 4", 392, 136},     {"4 x 3 x 5", 374, 194}},
  {61, {"R(2, 60)", 776, 415},      {"R(2, 60)", 762, 478}},
  {62, {"31 x 2", 715, 384},        {"31 x 2", 694, 448}},
  {63, {"7 x 3 * 3", 506, 302},     {"3 * 3 x 7", 488, 361}},
  {64, {"16 * 4", 417, 132},        {"2 * 2 * 2 * 2 * 2 * 2", 400, 196}},
};

constexpr RaderStage stages[] = {
  {.length = 13, .forward = "3 x 4", .skew = "3 * 2"},
  {.length = 17, .forward = "4 * 4"},
  {.length = 19, .forward = "3 * 3 x 2"},
  {.length = 23, .forward = "2 x 11", .inverse = "D(11) x 2"},
  {.length = 29, .forward = "7 x 4"},
  {.length = 31, .forward = "3 x 2 x 5"},
  {.length = 37, .forward = "4 x 3 * 3"},
  {.length = 41, .forward = "5 x 8"},
  {.length = 43, .forward = "2 x 7 x 3", .inverse = "3 x 7 x 2"},
  {.length = 47, .forward = "23 x 2"},
  {.length = 53, .forward = "4 x 13"},
  {.length = 59, .forward = "29 x 2"},
  {.length = 61, .forward = "3 x 5 x 4"},
};

struct ChosenTree {
  int length;
  Direction direction;
  const char* tree;
};
constexpr ChosenTree chosen[] = {
  {47, Direction::forward,
   "R(45, R(7, 2 x 11, R(8, 5 x 2, 5), R(2, 5 x 2, 5)) x 2, R(7, 2 x D(11), 11), R(5, D(11) x 2, 11))"},
  {47, Direction::inverse,
   "R(41, 2 x R(5, 2 x D(11), 11), R(5, 2 x 11, R(6, 5 x 2, 5), R(2, 5 x 2, 5)), "
   "R(17, 2 x 11, R(2, 5 x 2, 5)))"},
  {59, Direction::forward,
   "R(10, R(8, 7 x 2 * 2, 7 x 2) x 2, R(3, 2 * 2 x 7, 7 x 2), R(19, 7 x 2 * 2, 2 x 7))"},
  {53, Direction::inverse,
   "R(3, 2 * 2 x R(6, 2 * 2 x 3, 3 x 2), R(2, 3 x 2 * 2, 3 x 2, 3 * 2) x 2, R(2, 2 * 2 x 3, 3 x 2) x 2)"},
  {59, Direction::inverse,
   "R(44, 2 x R(10, 2 * 2 x 7, 7 x 2, 2 x 7), R(21, 2 * 2 x 7, 2 x 7, 7 x 2), "
   "R(2, 7 x 2 * 2, 2 x 7, 2 x 7))"},
};

constexpr BlockOrder orders[] = {
  { 7, Layout::ccs,  7, "D(7, 1, 3, 2, 0)"},
  {20, Layout::pack, 5, "D(5, 0, 1, 2)"},
  {40, Layout::pack, 5, "D(5, 0, 1, 2)"},
  {49, Layout::ccs,  7, "D(7, 1, 3, 2, 0)"},
  {50, Layout::pack, 5, "D(5, 0, 1, 2)"},
};
// clang-format on

// From these lengths on forward kernels of narrow targets are some percent faster in windows than in the
// order of other scalar networks, except those of binary64 in the list. Pairs, on wide targets, gain nothing.
constexpr int shortest_binary32 = 20, shortest_binary64 = 12;
constexpr int bisected[] = {16, 24, 25, 31, 36, 39, 41, 47, 50, 52, 59, 60, 61, 62};

}  // namespace

const Breakdown& breakdown(Direction direction, int length) {
  const Row& row = gen::row_of(rows, length);
  return direction == Direction::forward ? row.forward : row.inverse;
}

RaderStage rader_stage(int length) {
  const auto* const found = gen::find_row(stages, [&](const RaderStage& s) { return s.length == length; });
  return found == nullptr ? RaderStage{length} : *found;
}

const char* tree_of_least_error(Direction direction, int length) {
  const auto* const found = gen::find_row(
      chosen, [&](const ChosenTree& row) { return row.length == length && row.direction == direction; });
  return found == nullptr ? nullptr : found->tree;
}

gen::Order order(Direction direction, gen::Precision precision, int length, const gen::Target& target) {
  const bool single = precision == gen::Precision::binary32;
  const bool listed = gen::find_row(bisected, [&](int row) { return row == length; }) != nullptr;
  const bool windowed = direction == Direction::forward &&
                        target.register_bytes == gen::baseline().register_bytes &&
                        length >= (single ? shortest_binary32 : shortest_binary64) && (single || !listed);
  return windowed ? gen::Order::windowed : gen::scalar_order(precision);
}

std::span<const BlockOrder> block_orders() { return orders; }

}  // namespace xfm::real
