// A target: a kind of processor that a library is built for, as data. Everything outside this description and
// the target's vocabulary of registers is the same for all.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "gen/network/network.h"

namespace xfm::gen {

/// A permutation of lanes from two registers in one instruction. Lanes are numbered across both registers.
struct Permutation {
  std::string_view name;
  int lane_bytes;                   ///< what it moves together
  int cost;                         ///< in tenths of an addition
  Sequence<std::uint64_t> sources;  ///< for each lane the set of lanes that it can come from, as bits
  PerLane idle;                     ///< the picks for idle lanes

  bool allows(int lane, int pick) const { return (sources[lane] >> static_cast<unsigned>(pick) & 1U) != 0; }
  /// Whether it works on registers of so many lanes of this size.
  bool suits(int lanes, int bytes) const { return idle.size() == lanes && lane_bytes == bytes; }
  /// Whether every lane has only one source.
  bool fixed() const;
};

struct Target {
  std::string_view name;           ///< as compilers call it: "x86-64"
  std::string_view folder;         ///< where the loader looks for the library, below the baseline's folder
  std::string_view compile_flags;  ///< make a compiler use these instructions and no others
  std::string_view gcc_flags;      ///< more of them for the kernels, which gain by them with g++
  std::string_view vocabulary;     ///< the header that kernels are written in
  int register_bytes;
  bool unaligned_is_free;                     ///< one body serves aligned and unaligned memory
  std::span<const Permutation> permutations;  ///< the cheapest first
  int batch_register_bytes;                   ///< the widest registers, which only batches use
  std::array<int, 3> batch_lanes;  ///< transforms at a time: binary32, real binary64, complex binary64

  /// How many numbers of a precision a register holds.
  int lanes(Precision precision) const { return register_bytes / bytes(precision); }
  /// How many transforms a batch kernel computes at a time.
  int lanes_of_batch(Precision precision, bool complex) const {
    return batch_lanes[precision == Precision::binary32 ? 0 : complex ? 2 : 1];
  }
};

/// @name The descriptions, each in its own file
/// @{
Target x86_64();
Target x86_64_v2();
Target x86_64_v3();
Target x86_64_v4();
/// @}

/// All targets that can be built, the baseline first.
std::span<const Target> targets();
inline const Target& baseline() { return targets().front(); }

/// The target of a name; throws std::out_of_range if there is none.
const Target& target(std::string_view name);

}  // namespace xfm::gen
