// The search for pairs: which operations of a straight-line graph go side by side, so that one instruction of
// twice the width computes both.
//
// Pairing two by two vectorises any straight-line network (S. Kral, F. Franchetti, J. Lorenz, C. W.
// Ueberhuber: SIMD vectorization of straight line FFT code, Euro-Par 2003). Simulated annealing (S.
// Kirkpatrick, C. D. Gelatt, M. P. Vecchi: Optimization by simulated annealing, Science 220, 1983) looks for
// the pairs whose operations and shuffles cost least. The search is a function of its arguments: it computes
// with integers, has its own random numbers, and makes a fixed number of moves.
#pragma once

#include <array>
#include <cstdint>

#include "gen/math/sequence.h"

namespace xfm::gen {

/// An operation of the graph that is to be packed; operands come before their users.
struct Unit {
  int kind = 0;                   ///< only units of one kind can pair; kinds index PairCosts::kind
  std::array<int, 2> in{-1, -1};  ///< operands, or -1
  bool commutative = false;       ///< the two operands may change places
  bool subtracts = false;         ///< a - b, of the same kind as a + b
  bool constant_product = false;  ///< with one user it can carry the sign of that use
  int load = -1;                  ///< of a load: its place in memory, in units of its own size
};

/// A store of a unit.
struct Leaving {
  int unit, place;
};

/// What instructions cost, in tenths of an addition.
struct PairCosts {
  Sequence<int> kind;         ///< an operation, single or paired
  int load, merged_load;      ///< a load, and one that fills the other half of a register
  int shuffle;                ///< any two lanes next to each other; also a single value out of the high lane
  int flip;                   ///< signs of some lanes changed
  int store, upper_store;     ///< a store, and what one from the high lane costs on top
  int alternating_signs = 0;  ///< on top of an addition whose low lane subtracts and whose high lane adds
};

/// Two units in the lanes of one operation. The first operand of the low one is beside the first of the high
/// one, or, if they are crossed, beside the second: one of the two is commutative then.
struct Pair {
  int low, high;
  bool crossed = false;
  bool operator==(const Pair&) const = default;
};

/// Two values next to each other, low and high.
using Vector = std::array<int, 2>;

/// The operands of a pair, slot by slot: those of the low unit and those of the high one. Crossed, the
/// operands of the high unit change places, or those of the low one if the high one subtracts.
std::array<Vector, 2> operand_vectors(const Sequence<Unit>& units, const Pair& pair);

struct Search {
  int moves = 0;  ///< 0: as many as suit the size
  std::uint64_t seed = 1;
};

/// The pairs that were found, in the order of their low units.
Sequence<Pair> find_pairs(const Sequence<Unit>& units, const Sequence<Leaving>& leaving,
                          const PairCosts& costs, const Search& search = {});

/// What the graph costs with these pairs.
int cost_of(const Sequence<Pair>& pairs, const Sequence<Unit>& units, const Sequence<Leaving>& leaving,
            const PairCosts& costs);

/// The places p whose value leaves by one store together with that of p + 1: the two are a pair, or they are
/// shuffled together because that costs less than two stores.
Sequence<int> joint_stores(const Sequence<Pair>& pairs, const Sequence<Unit>& units,
                           const Sequence<Leaving>& leaving, const PairCosts& costs);

}  // namespace xfm::gen
