#include "gen/network/check.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

#include "gen/network/interpreter.h"
#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

using LaneSet = std::array<bool, max_lanes>;

// Which lanes of each node some store depends on.
std::vector<LaneSet> live_lanes(const Network& network) {
  std::vector<LaneSet> live(network.nodes().size());
  const auto at = [&](NodeId id) -> LaneSet& { return live[static_cast<std::size_t>(id)]; };
  for (const Store& store : network.stores()) {
    if (store.node < 0) continue;
    for (std::size_t l = 0; l < static_cast<std::size_t>(network.width()); ++l) {
      at(store.node)[l] |= store.lanes[l] >= 0;
    }
  }
  for (NodeId id = static_cast<NodeId>(live.size()) - 1; id >= 0; --id) {
    const Node& node = network.node(id);
    for (std::size_t l = 0; l < max_lanes; ++l) {
      if (!at(id)[l]) continue;
      if (node.op == Op::shuffle) {
        const auto pick = static_cast<std::size_t>(node.lanes[l]);
        at(node.in[pick / max_lanes])[pick % max_lanes] = true;
      } else if (node.op == Op::exchange) {
        at(node.in[0])[1 - l] = true;
      } else {
        for (const NodeId operand : operands(node)) at(operand)[l] = true;
      }
    }
  }
  return live;
}

// Real operations of a packed network: a lane works unless it is idle, multiplies by 0, 1 or -1, or adds such
// a zero.
class LaneCounter {
 public:
  explicit LaneCounter(const Network& network)
      : network_(network), live_(live_lanes(network)), zero_(network.nodes().size()) {}

  Counts run() {
    for (NodeId id = 0; id < static_cast<NodeId>(live_.size()); ++id) visit(id);
    counts_.stores = static_cast<int>(network_.stores().size());
    return counts_;
  }

 private:
  void visit(NodeId id) {
    const Node& node = network_.node(id);
    const LaneSet& live = live_[static_cast<std::size_t>(id)];
    if (std::none_of(live.begin(), live.end(), [](bool l) { return l; })) return;
    switch (node.op) {
      case Op::load:
        ++counts_.loads;
        break;
      case Op::shuffle:
        ++counts_.shuffles;
        break;
      case Op::exchange:
        ++counts_.exchanges;
        break;
      case Op::sign_flip:
        break;
      case Op::add:
      case Op::sub:
        ++counts_.add_nodes;
        break;
      case Op::minus:
        ++counts_.adds;
        ++counts_.add_nodes;
        break;
      case Op::twice:  // a multiplication by its row, an addition by its instruction
        ++counts_.mults;
        ++counts_.add_nodes;
        break;
      case Op::mul:
      case Op::factor:
        ++counts_.mult_nodes;
        break;
      case Op::combination:
        combination(node);
        break;
    }
    for (std::size_t l = 0; l < static_cast<std::size_t>(network_.width()); ++l) lane(id, node, l, live[l]);
  }

  void lane(NodeId id, const Node& node, std::size_t l, bool live) {
    const auto zero = [&](NodeId of, std::size_t at) { return zero_[static_cast<std::size_t>(of)][at]; };
    bool& mine = zero_[static_cast<std::size_t>(id)][l];
    if (node.op == Op::add || node.op == Op::sub) {
      mine = zero(node.in[0], l) && zero(node.in[1], l);
      if (live && !zero(node.in[0], l) && !zero(node.in[1], l)) ++counts_.adds;
    } else if (node.op == Op::mul) {
      const Constant& c = node.constants[node.constants.size() == 1 ? 0 : l];
      mine = c.is_zero() || zero(node.in[0], l);
      if (live && !mine && !magnitude(c).is_one()) ++counts_.mults;
    } else if (node.op == Op::shuffle) {
      const auto pick = static_cast<std::size_t>(node.lanes[l]);
      mine = zero(node.in[pick / max_lanes], pick % max_lanes);
    }
  }

  void combination(const Node& node) {
    const int adds = static_cast<int>(node.terms.size()) - 1;
    const int mults = static_cast<int>(std::count_if(node.terms.begin(), node.terms.end(), [](const Term& t) {
      return !magnitude(t.coefficient).is_one();
    }));
    counts_.adds += adds;
    counts_.mults += mults;
    counts_.add_nodes += adds;
    counts_.mult_nodes += mults + (scales(node.finish) ? 1 : 0);
    if (node.finish == Finish::negated) {
      ++counts_.adds;
      ++counts_.add_nodes;
    }
  }

  const Network& network_;
  std::vector<LaneSet> live_;
  std::vector<LaneSet> zero_;
  Counts counts_;
};

void check_once(std::vector<int> seen, const std::string& what, const std::string& name) {
  for (std::size_t s = 0; s < seen.size(); ++s) {
    if (seen[s] != 1)
      throw std::runtime_error(fmt::format("{}: scalar {} is {} {} times", name, s, what, seen[s]));
  }
}

}  // namespace

Counts count(const Network& network) { return LaneCounter(network).run(); }

int instructions(const Network& network) { return static_cast<int>(schedule(network).size()); }

namespace {

void check_memory(const Network& network, Order order, int read, int written, const std::string& name,
                  const std::vector<int>& unread) {
  std::vector<int> loads(static_cast<std::size_t>(read)), stores(static_cast<std::size_t>(written));
  for (const Step& step : schedule(network, order)) {
    const bool loading = step.node >= 0 && network.node(step.node).op == Op::load;
    if (!loading && step.store < 0) continue;
    const auto& lanes = loading ? network.node(step.node).lanes
                                : network.stores()[static_cast<std::size_t>(step.store)].lanes;
    for (const int scalar : lanes) {
      if (scalar >= 0) ++(loading ? loads : stores).at(static_cast<std::size_t>(scalar));
    }
    if (loading && std::any_of(stores.begin(), stores.end(), [](int n) { return n > 0; })) {
      throw std::runtime_error(name + ": an input is read after the first store");
    }
  }
  for (const int scalar : unread) ++loads.at(static_cast<std::size_t>(scalar));
  check_once(std::move(loads), "read", name);
  check_once(std::move(stores), "written", name);
}

}  // namespace

void check_memory(const Network& network, int read, int written, const std::string& name,
                  const std::vector<int>& unread) {
  for (const Order order : {Order::windowed, Order::earliest_start, Order::bisection})
    check_memory(network, order, read, written, name, unread);
}

void check_counts(const Counts& counts, int adds, int mults, const std::string& name) {
  const auto check = [&](int got, int row, const char* what) {
    if (got > row) {
      throw std::runtime_error(name + ": " + std::to_string(got) + " " + what + ", row says " +
                               std::to_string(row));
    }
  };
  check(counts.adds, adds, "adds");
  check(counts.mults, mults, "mults");
}

void check_definition(const Network& network, const Definition& definition, int read, int written,
                      const std::string& name) {
  Interpreter<Wide> interpreter(network);
  std::vector<Wide> src(static_cast<std::size_t>(read)), dst(static_cast<std::size_t>(written)),
      expected(dst.size());
  unsigned state = 1;  // a linear congruential generator: the same vectors in every build
  for (int round = 0; round < 2; ++round) {
    for (Wide& v : src) {
      state = state * 1664525U + 1013904223U;
      v = Wide(state) / Wide(1U << 31) - 1;
    }
    interpreter.run(src.data(), dst.data(), 1);
    definition(src, expected);
    for (std::size_t k = 0; k < dst.size(); ++k) {
      if (!(wide_abs(dst[k] - expected[k]) < Wide(1e-26))) {
        throw std::runtime_error(name + ": output " + std::to_string(k) + " is not that of the transform");
      }
    }
  }
}

}  // namespace xfm::gen
