// The structure of every Hartley network: data only.
#pragma once

namespace xfm::hartley {

/// What the network does first: only sums and differences of x[j] and x[N-j], or small transforms of inputs
/// at a regular distance.
enum class Input { none, fold, groups };

/// What it does last: sums and differences that give H[k] and H[N-k], or H[k] and H[k+N/2]; or, in each
/// residue class modulo N/r (for a prime N, each coset of the subgroup of order r), all but one of its r
/// outputs in pairs.
enum class Output { conjugate, half, radix };

struct Claim {
  int length;
  Input input;
  int groups[5];  ///< sizes m: sets of m inputs partition all, each with a value of just these
  Output output;
  int radix = 0;
};

// clang-format off
constexpr Claim claims[] = {
  { 2, Input::none, {2}, Output::half},
  { 3, Input::fold, {2, 3}, Output::conjugate},
  { 4, Input::fold, {2, 4}, Output::conjugate},
  { 5, Input::fold, {2, 4, 5}, Output::conjugate},
  { 6, Input::fold, {3, 6}, Output::conjugate},
  { 7, Input::fold, {2, 6, 7}, Output::conjugate},
  { 8, Input::groups, {2, 4, 8}, Output::conjugate},
  { 9, Input::groups, {3, 8, 9}, Output::conjugate},
  {10, Input::fold, {2, 10}, Output::conjugate},
  {11, Input::fold, {2, 10, 11}, Output::conjugate},
  {12, Input::fold, {6, 12}, Output::half},
  {13, Input::fold, {2, 6, 12, 13}, Output::conjugate},
  {14, Input::fold, {2, 14}, Output::conjugate},
  {15, Input::fold, {2, 15}, Output::radix, 5},
  {16, Input::groups, {2, 4, 8, 16}, Output::conjugate},
  {17, Input::fold, {2, 4, 8, 16, 17}, Output::conjugate},
  {18, Input::fold, {2, 18}, Output::radix, 3},
  {19, Input::groups, {3, 9, 18, 19}, Output::conjugate},
  {20, Input::fold, {10, 20}, Output::half},
  {21, Input::groups, {7, 20, 21}, Output::conjugate},
  {22, Input::groups, {2, 22}, Output::conjugate},
  {23, Input::fold, {2, 22, 23}, Output::conjugate},
  {24, Input::groups, {3, 6, 12, 24}, Output::conjugate},
  {25, Input::fold, {2, 25}, Output::radix, 5},
  {26, Input::groups, {13, 26}, Output::conjugate},
  {27, Input::fold, {2, 27}, Output::radix, 3},
  {28, Input::fold, {2, 4, 28}, Output::radix, 7},
  {29, Input::groups, {7, 14, 28, 29}, Output::conjugate},
  {30, Input::fold, {15, 30}, Output::half},
  {31, Input::fold, {2, 6, 30, 31}, Output::radix, 5},
  {32, Input::fold, {16, 32}, Output::half},
  {33, Input::fold, {2, 33}, Output::radix, 11},
  {34, Input::fold, {17, 34}, Output::half},
  {35, Input::fold, {2, 35}, Output::radix, 7},
  {36, Input::fold, {2, 4, 36}, Output::radix, 3},
  {37, Input::fold, {2, 6, 18, 36, 37}, Output::conjugate},
  {38, Input::groups, {19, 38}, Output::conjugate},
  {39, Input::groups, {13, 38, 39}, Output::conjugate},
  {40, Input::fold, {20, 40}, Output::half},
  {41, Input::groups, {5, 10, 20, 40, 41}, Output::conjugate},
  {42, Input::fold, {2, 42}, Output::radix, 7},
  {43, Input::fold, {2, 14, 42, 43}, Output::radix, 7},
  {44, Input::fold, {2, 4, 44}, Output::radix, 11},
  {45, Input::fold, {2, 45}, Output::radix, 3},
  {46, Input::fold, {23, 46}, Output::half},
  {47, Input::groups, {23, 46, 47}, Output::conjugate},
  {48, Input::fold, {16, 48}, Output::radix, 3},
  {49, Input::groups, {7, 48, 49}, Output::conjugate},
  {50, Input::groups, {5, 25, 50}, Output::conjugate},
  {51, Input::fold, {2, 51}, Output::radix, 17},
  {52, Input::groups, {13, 26, 52}, Output::conjugate},
  {53, Input::fold, {2, 26, 52, 53}, Output::conjugate},
  {54, Input::fold, {27, 54}, Output::half},
  {55, Input::fold, {2, 55}, Output::radix, 11},
  {56, Input::fold, {8, 56}, Output::radix, 7},
  {57, Input::groups, {19, 56, 57}, Output::conjugate},
  {58, Input::groups, {2, 58}, Output::conjugate},
  {59, Input::groups, {29, 58, 59}, Output::conjugate},
  {60, Input::fold, {2, 4, 60}, Output::radix, 5},
  {61, Input::groups, {3, 15, 30, 60, 61}, Output::conjugate},
  {62, Input::fold, {31, 62}, Output::half},
  {63, Input::groups, {7, 21, 62, 63}, Output::conjugate},
  {64, Input::fold, {32, 64}, Output::half},
};
// clang-format on

}  // namespace xfm::hartley
