// The passes, each in a file of its own. A pass makes a new network of an old one; what is dead stays behind.
//
// A draft is a scalar network that is not bound to memory yet: its loads are numbered inputs, and instead of
// stores it has outputs, which are values with signs.
#pragma once

#include <memory>

#include "gen/math/constant.h"
#include "gen/network/network.h"

namespace xfm::gen {

/// Constant folding: products of products become one product, whose constant is multiplied out before it is
/// rounded. A product that only products use is dropped, and its constant goes into theirs. The transposed
/// case: a product of a sum of products that nothing else uses is distributed over them. Both save a
/// multiplication and its rounding.
std::unique_ptr<Network> fold_constants(const Network& network);

/// Drops the sign flips that constants can carry: where only a flip uses a product, or a sum of such
/// products, directly or through permutations, the products' constants take the signs. Signs are exact, so no
/// value changes; only a sum that cancels to zero may change the sign of that zero. Single products alone
/// keep that sign too.
enum class Carriers { products, sums_too };
std::unique_ptr<Network> absorb_sign_flips(const Network& network, Carriers carriers = Carriers::sums_too);

/// Lowers a network to operations on one or two operands: the operands of linear combinations are widened,
/// multiplied, added from left to right and narrowed, each step by an operation of its own.
std::unique_ptr<Network> lowered(const Network& network, Precision precision);

/// Reads a lowered network lane by lane: a scalar network with the same operations on the same operands, and
/// no permutation left in it.
std::unique_ptr<Network> lane_by_lane(const Network& network);

/// @name Drafts: linear combinations that consist of products alone
/// @{

/// A combination whose only use is a single product takes that product's constant into its own. Constants are
/// multiplied out before they are rounded. This saves a multiplication and a rounding.
std::unique_ptr<Network> merged(const Network& draft);

/// Merges only in pairs: where u + v and u - v are multiplied by the same constant and used in no other way,
/// u and v take it.
std::unique_ptr<Network> merged_pairs(const Network& draft);

/// Combinations that only additions and subtractions use stay in binary64 through them: one rounding instead
/// of two, at equal counts.
std::unique_ptr<Network> unrounded(const Network& draft);
/// @}

/// For each node of a draft whether its negative is computed, so that no operation starts with a minus and as
/// few outputs as possible have to be subtracted from zero. Deterministic.
Sequence<bool> negated_values(const Network& draft);

/// Where the inputs and outputs of a draft are in memory, by number.
struct Binding {
  PerLane from, to;
  PerLane zeros{};             ///< elements of dst that are zero whatever the data
  bool factor_inside = false;  ///< multiplied before rounding, in linear combinations used by outputs alone
};

/// The draft's network, which loads from memory and stores to it, with some values computed as their
/// negatives. Every output is multiplied by the factor in its last step, and subtracted from zero if its sign
/// is still wrong.
std::unique_ptr<Network> bind(const Network& draft, const Binding& binding, const Sequence<bool>& negated);

}  // namespace xfm::gen
