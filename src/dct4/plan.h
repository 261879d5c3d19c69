// The objects of a plan. Each is a plain record that starts with a header. It also keeps the parameters that
// its kind does not read, so that every object describes its place in the plan in full.
//
// Letters, here and in the files that build and run a plan:
//   N   length; where it is 2^k + 1, quotients such as N / r are truncated
//   r   outer radix, m = N / r the fold length, c = N / (2 r) the number of spectrum classes
//   R   product of the radixes above a split; r2 its radix, m2 its inner fold length, c2 its class count
//   L   elements of a group
#pragma once

#include <cstddef>
#include <cstdint>

#include "src/dct4/arena.h"
#include "src/dct4/breakdown.h"
#include "xfm.h"

namespace xfm::dct4 {

/// Kind of a root that runs a tree; smaller kinds are base lengths.
constexpr std::int32_t root_kind_tree = 6;
/// Kind of a shell or split that was built completely.
constexpr std::int32_t kind_sound = 1;
/// Kind of a fold whose length splits; smaller kinds are leaves.
constexpr std::int32_t fold_kind_split = 7;

/// The root: the state that the caller holds.
template <class T>
struct Dct4Plan {
  PlanObject head;
  PlanList* owner;  ///< CosSinSource, CombineShell, FoldShell
  PlanList* combine_view;
  PlanList* fold_view;
  T* work;            ///< N elements: the spectrum; null for a base length
  std::int32_t kind;  ///< 1 to 5: a base length; root_kind_tree
  std::int32_t radix;
  std::int32_t length;
};

/// The fold side's outer object.
struct FoldShell {
  PlanObject head;
  PlanList* owner;  ///< FoldNode
  PlanList* view;
  std::uint64_t reserved;
  std::int32_t kind;  ///< kind_sound if r is a multiple of L
  std::int32_t fold;  ///< m
  std::int32_t length;
  std::int32_t mirror;  ///< 2 N - 1
  std::int32_t step;    ///< 2 r
  std::int32_t radix;   ///< r
  std::int32_t whole;   ///< N
  std::int32_t part;    ///< r
};

/// Fold of length m, by batches of L residues.
struct FoldNode {
  PlanObject head;
  PlanList* owner;  ///< OddSplitNode, if the kind is fold_kind_split
  PlanList* view;
  std::uint64_t reserved;
  std::int32_t kind;  ///< leaf_kind(m), or fold_kind_split
  std::int32_t fold;  ///< m
  std::int32_t length;
  std::int32_t mirror;   ///< 2 N - 1
  std::int32_t step;     ///< 2 r: from a sample to the next, in elements
  std::int32_t batches;  ///< r / L
  std::int32_t whole;    ///< N
  std::int32_t part;     ///< r: from a real to its imaginary part in the work area
};

/// The combine side's outer object.
struct CombineShell {
  PlanObject head;
  PlanList* owner;  ///< LaneSource, CombineNode
  PlanList* view;   ///< CombineNode
  std::uint64_t reserved;
  std::int32_t kind;   ///< kind_sound if c is a multiple of L
  std::int32_t radix;  ///< r
  std::int32_t length;
  std::int32_t step;     ///< 2 r
  std::int32_t classes;  ///< c
  std::int32_t whole;    ///< N
  std::int32_t mirror;   ///< 2 N - 1
  std::int32_t fold;     ///< N / r
  PlanObject* source;    ///< CosSinSource
};

/// Twist and expansion, by groups of L classes.
template <class T>
struct CombineNode {
  PlanObject head;
  PlanList* owner;  ///< empty
  T* table;
  std::int32_t kind;   ///< 1 to 6 for r = 1 .. 32
  std::int32_t radix;  ///< r
  std::int32_t length;
  std::int32_t step;            ///< 2 r: from a class to the next in the work area
  std::int32_t group_elements;  ///< 2 r L: of the table, for one group
  std::int32_t groups;          ///< c / L
  std::int32_t whole;           ///< N
  std::int32_t mirror;          ///< 2 N - 1
  std::int32_t fold;            ///< N / r
  PlanObject* source;           ///< LaneSource
};

/// The split of an odd DFT of length m into r2 of length m2.
template <class T>
struct OddSplitNode {
  PlanObject head;
  PlanList* owner;  ///< HalfStepSource, OddCombineNode, OddFoldNode
  PlanList* combine_view;
  PlanList* fold_view;
  T* work;             ///< N elements
  std::int32_t kind;   ///< kind_sound
  std::int32_t fold;   ///< m
  std::int32_t radix;  ///< r2
  std::int32_t length;
  std::int32_t whole;  ///< N
  std::int32_t step;   ///< 2 R
  std::int32_t full;   ///< N
  std::int32_t part;   ///< R
};

/// The inner folds, one for each sub-sequence.
struct OddFoldNode {
  PlanObject head;
  PlanList* owner;  ///< the next OddSplitNode, if the kind is fold_kind_split
  PlanList* view;
  std::uint64_t reserved;
  std::int32_t kind;  ///< leaf_kind(m2), or fold_kind_split
  std::int32_t fold;  ///< m2
  std::int32_t length;
  std::int32_t whole;         ///< N
  std::int32_t step;          ///< 2 R r2: from a sample to the next
  std::int32_t forward_step;  ///< 2 R: from a sub-sequence to the next
  std::int32_t sequences;     ///< r2
  std::int32_t full;          ///< N
  std::int32_t part;          ///< R r2: from a real to its imaginary part in the work area
  std::int32_t output_step;   ///< R: from a sub-sequence to the next in the work area
};

/// The inner combine, by classes.
template <class T>
struct OddCombineNode {
  PlanObject head;
  PlanList* owner;  ///< empty
  T* table;
  std::int32_t kind;   ///< 1 to 5 for r2 = 2 .. 32
  std::int32_t radix;  ///< r2
  std::int32_t length;
  std::int32_t sequence_step;  ///< R: from a sub-sequence to the next in the work area
  std::int32_t class_step;     ///< 2 R r2: from a class to the next in the work area
  std::int32_t classes;        ///< c2
  std::int32_t whole;          ///< N
  std::int32_t half;           ///< m / 2
  std::int32_t mirror;         ///< m - 1
  std::int32_t part;           ///< R: from a real to its imaginary part in the output
  std::int32_t fold;           ///< m2
  PlanObject* source;          ///< HalfStepSource
};

// The sizes are visible to callers: the size query counts them.
static_assert(sizeof(PlanObject) == 32 && sizeof(PlanList) == 24);
static_assert(sizeof(Dct4Plan<float>) == 80 && sizeof(FoldShell) == 88 && sizeof(FoldNode) == 88);
static_assert(sizeof(CombineShell) == 96 && sizeof(CombineNode<float>) == 96);
static_assert(sizeof(OddSplitNode<float>) == 96 && sizeof(OddFoldNode) == 96);
static_assert(sizeof(OddCombineNode<float>) == 104);

/// The object in a list's first cell, whose kind the caller knows. A record has the address of its header,
/// which is its first member.
template <class Record>
const Record* first_of(const PlanList* list) {
  return reinterpret_cast<const Record*>(list_nth(list, 0));
}

/// Builds the plan of a length in a block; root stays as it is if the length cannot be broken down.
template <class T>
xfmStatus init(Dct4Plan<T>** root, std::int32_t length, void* block);

/// Releases everything to the arena, whose top is then where init began.
template <class T>
void destroy(Dct4Plan<T>* root);

/// dst[k] = sum over j of src[j] cos(pi / N (j + 1/2) (k + 1/2)), by the plan.
template <class T>
xfmStatus run(const T* src, T* dst, const Dct4Plan<T>& root);

}  // namespace xfm::dct4
