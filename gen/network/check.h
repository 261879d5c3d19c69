// Costs of a finished network, and its checks during the build. A kernel that fails one stops the build by
// name.
#pragma once

#include <functional>
#include <string>

#include "gen/network/network.h"

namespace xfm::gen {

/// Real operations without the factor multiplications, which the rows bound, and the instructions that
/// perform them.
struct Counts {
  int adds = 0, mults = 0;            ///< lanes that carry data: idle and trivial lanes do not count
  int add_nodes = 0, mult_nodes = 0;  ///< instructions; mult_nodes includes the factor multiplications
  int permutations = 0, loads = 0, stores = 0;
};
Counts count(const Network& network);

/// Every scalar of 0..read-1 must be read exactly once, except the `unread`, which must never be; every one
/// of 0..written-1 must be written exactly once.
void check_memory(const Network& network, int read, int written, const std::string& name,
                  const PerLane& unread = {});

/// The counts must not exceed the row's.
void check_counts(const Counts& counts, int adds, int mults, const std::string& name);

/// The network must agree with a definition, in binary128 on a few fixed vectors. The definition maps src to
/// dst.
using Definition = std::function<void(const Sequence<Wide>& src, Sequence<Wide>& dst)>;
void check_definition(const Network& network, const Definition& definition, int read, int written,
                      const std::string& name);

}  // namespace xfm::gen
