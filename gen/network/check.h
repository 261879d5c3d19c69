// Checks of a finished network, at generation: a kernel that fails one stops the build by name.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/network/network.h"

namespace xfm::gen {

/// Real operations without the factor multiplications, and the packed instructions that carry them.
struct Counts {
  int adds = 0, mults = 0;            ///< lanes that carry data: idle and trivial lanes do not count
  int add_nodes = 0, mult_nodes = 0;  ///< instructions, the factor multiplications among mult_nodes
  int shuffles = 0, exchanges = 0, loads = 0, stores = 0;
};
Counts count(const Network& network);

/// All live nodes and stores: what a processor has to issue, but for register copies and spills.
int instructions(const Network& network);

/// Every scalar of 0..read-1 is read exactly once, but for the `unread`, which never are; every one of
/// 0..written-1 is written exactly once, and nothing before the last read.
void check_memory(const Network& network, int read, int written, const std::string& name,
                  const std::vector<int>& unread = {});

/// Counts against the row.
void check_counts(const Counts& counts, int adds, int mults, const std::string& name);

/// The network against a definition, in binary128 on a few fixed vectors. The definition maps src to dst.
using Definition = std::function<void(const std::vector<Wide>& src, std::vector<Wide>& dst)>;
void check_definition(const Network& network, const Definition& definition, int read, int written,
                      const std::string& name);

}  // namespace xfm::gen
