#include "gen/passes/sign_flips.h"

#include <algorithm>

#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

using Signs = std::array<bool, max_lanes>;  // lanes to be turned

class Absorbing {
 public:
  explicit Absorbing(const Network& old)
      : old_(old),
        made_(std::make_unique<Network>(old.width(), old.rounding())),
        uses_(old.nodes().size(), 0),
        values_(old.nodes().size()) {
    for (const Step& step : schedule(old)) {
      if (step.node >= 0) count_uses(old.node(step.node));
    }
    for (const Store& store : old.stores()) ++uses_[index(store.node)];
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < static_cast<NodeId>(values_.size()); ++id) {
      if (uses_[index(id)] > 0) values_[index(id)] = make(id);
    }
    for (const Store& store : old_.stores()) made_->store(value(store.node), store.lanes);
    return std::move(made_);
  }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  const Value& value(NodeId id) const { return values_[index(id)]; }

  // A node that takes both operands from one value uses it once.
  void count_uses(const Node& node) {
    if (node.in[0] >= 0) ++uses_[index(node.in[0])];
    if (node.in[1] >= 0 && node.in[1] != node.in[0]) ++uses_[index(node.in[1])];
  }

  Value make(NodeId id) {
    const Node& node = old_.node(id);
    const auto in = [&](std::size_t k) { return node.in[k] < 0 ? Value{} : value(node.in[k]); };
    const bool falls_away = node.op == Op::sign_flip && carries(node.in[0]);
    return falls_away ? turned(node.in[0], signs_of(node)) : made_->repeat(node, in(0), in(1));
  }

  static Signs signs_of(const Node& flip) {
    Signs signs{};
    for (std::size_t l = 0; l < max_lanes; ++l) signs[l] = flip.lanes[l] == 1;
    return signs;
  }

  // Every lane of one value, in another order.
  static bool permutes(const Node& shuffle) {
    Signs seen{};
    for (const int lane : shuffle.lanes) seen[static_cast<std::size_t>(lane) % max_lanes] = true;
    return shuffle.in[0] == shuffle.in[1] && std::all_of(seen.begin(), seen.end(), [](bool s) { return s; });
  }

  // Products, sums of products and permutations of their lanes, none of them used twice.
  bool carries(NodeId id) const {
    const Node& node = old_.node(id);
    if (uses_[index(id)] != 1) return false;
    if (node.op == Op::mul) return true;
    if (node.op == Op::shuffle) return permutes(node) && carries(node.in[0]);
    return (node.op == Op::add || node.op == Op::sub) && carries(node.in[0]) && carries(node.in[1]);
  }

  Value turned(NodeId id, const Signs& signs) {
    const Node& node = old_.node(id);
    if (node.op == Op::mul) return made_->mul(turned(node.constants, signs), value(node.in[0]));
    if (node.op == Op::shuffle) {
      Signs sources{};
      for (std::size_t l = 0; l < max_lanes; ++l) {
        if (signs[l]) sources[static_cast<std::size_t>(node.lanes[l]) % max_lanes] = true;
      }
      const Value source = turned(node.in[0], sources);
      return made_->repeat(node, source, source);
    }
    const Value a = turned(node.in[0], signs), b = turned(node.in[1], signs);  // nodes are made in this order
    return made_->repeat(node, a, b);
  }

  static std::vector<Constant> turned(const std::vector<Constant>& constants, const Signs& signs) {
    std::vector<Constant> lanes;
    for (std::size_t l = 0; l < max_lanes; ++l) {
      const Constant& c = constants[constants.size() == 1 ? 0 : l];
      lanes.push_back(signs[l] ? -c : c);
    }
    return lanes;
  }

  const Network& old_;
  std::unique_ptr<Network> made_;
  std::vector<int> uses_;
  std::vector<Value> values_;
};

}  // namespace

std::unique_ptr<Network> absorb_flips(const Network& network) { return Absorbing(network).run(); }

}  // namespace xfm::gen
