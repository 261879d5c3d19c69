#include "gen/network/check.h"

#include <fmt/format.h>

#include <stdexcept>

#include "gen/network/interpreter.h"

namespace xfm::gen {
namespace {

void check_once(const Sequence<int>& times, const char* what, const std::string& name) {
  for (int s = 0; s < times.size(); ++s) {
    if (times[s] != 1)
      throw std::runtime_error(fmt::format("{}: scalar {} is {} {} times", name, s, what, times[s]));
  }
}

}  // namespace

void check_memory(const Network& network, int read, int written, const std::string& name,
                  const PerLane& unread) {
  Sequence<int> loads(read), stores(written);
  const auto meet = [](const PerLane& lanes, Sequence<int>& times) {
    for (const int scalar : lanes) {
      if (scalar >= 0) ++times.at(static_cast<std::size_t>(scalar));
    }
  };
  const Sequence<int> used = uses(network);
  for (NodeId id = 0; id < used.size(); ++id) {
    if (used[id] > 0 && network.node(id).op == Op::load) meet(network.node(id).lanes, loads);
  }
  for (const Store& store : network.stores()) meet(store.lanes, stores);
  meet(unread, loads);
  check_once(loads, "read", name);
  check_once(stores, "written", name);
}

void check_counts(const Counts& counts, int adds, int mults, const std::string& name) {
  const auto check = [&](int got, int row, const char* what) {
    if (got > row) throw std::runtime_error(fmt::format("{}: {} {}, row says {}", name, got, what, row));
  };
  check(counts.adds, adds, "adds");
  check(counts.mults, mults, "mults");
}

void check_definition(const Network& network, const Definition& definition, int read, int written,
                      const std::string& name) {
  Sequence<Wide> src(read), dst(written), expected(written);
  unsigned state = 1;  // a linear congruential generator: the same vectors in every build
  for (int round = 0; round < 2; ++round) {
    for (Wide& v : src) {
      state = state * 1664525U + 1013904223U;
      v = Wide(state) / Wide(1U << 31) - 1;
    }
    evaluate<Wide>(network, src.data(), dst.data(), 1);
    definition(src, expected);
    for (int k = 0; k < written; ++k) {
      if (!(wide_abs(dst[k] - expected[k]) < Wide(1e-26)))
        throw std::runtime_error(fmt::format("{}: output {} is not that of the transform", name, k));
    }
  }
}

}  // namespace xfm::gen
