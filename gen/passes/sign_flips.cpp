#include "gen/passes/sign_flips.h"

#include <algorithm>

#include "gen/network/liveness.h"

namespace xfm::gen {
namespace {

class Absorbing {
 public:
  explicit Absorbing(const Network& old)
      : old_(old),
        made_(std::make_unique<Network>(old.width(), old.rounding())),
        uses_(uses(old)),
        values_(uses_.size()) {}

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < values_.size(); ++id) {
      if (uses_[id] > 0) values_[id] = make(id);
    }
    for (const Store& store : old_.stores())
      made_->repeat(store, store.node < 0 ? Value{} : values_[store.node]);
    return std::move(made_);
  }

 private:
  Value make(NodeId id) {
    const Node& node = old_.node(id);
    const auto in = [&](std::size_t k) { return node.in[k] < 0 ? Value{} : values_[node.in[k]]; };
    const bool falls_away = node.op == Op::sign_flip && carries(node.in[0]);
    return falls_away ? flipped(node.in[0], node.lanes) : made_->repeat(node, in(0), in(1));
  }

  int source(int pick) const { return pick % old_.width(); }

  // Every lane of one value, in another order.
  bool permutes(const Node& node) const {
    Sequence<bool> seen(old_.width());
    for (const int pick : node.lanes) seen[source(pick)] = true;
    return node.in[0] == node.in[1] && std::all_of(seen.begin(), seen.end(), [](bool s) { return s; });
  }

  // Products, sums of products and permutations of their lanes, none of them used twice.
  bool carries(NodeId id) const {
    const Node& node = old_.node(id);
    if (uses_[id] != 1) return false;
    if (node.op == Op::mul) return true;
    if (node.op == Op::permute) return permutes(node) && carries(node.in[0]);
    return (node.op == Op::add || node.op == Op::sub) && carries(node.in[0]) && carries(node.in[1]);
  }

  // The value with the signs of the marked lanes changed.
  Value flipped(NodeId id, const PerLane& signs) {
    const Node& node = old_.node(id);
    if (node.op == Op::mul) return made_->mul(flipped(node, signs), values_[node.in[0]]);
    if (node.op == Op::permute) {
      PerLane sources(signs.size());
      for (int l = 0; l < signs.size(); ++l) sources[source(node.lanes[l])] = signs[l];
      const Value before = flipped(node.in[0], sources);
      return made_->repeat(node, before, before);
    }
    // One by one: nodes are made in this order.
    const Value a = flipped(node.in[0], signs), b = flipped(node.in[1], signs);
    return made_->repeat(node, a, b);
  }

  static Sequence<Constant> flipped(const Node& product, const PerLane& signs) {
    Sequence<Constant> lanes;
    for (int l = 0; l < signs.size(); ++l)
      lanes.push_back(signs[l] == 1 ? -product.constant(l) : product.constant(l));
    return lanes;
  }

  const Network& old_;
  std::unique_ptr<Network> made_;
  Sequence<int> uses_;
  Sequence<Value> values_;
};

}  // namespace

std::unique_ptr<Network> absorb_sign_flips(const Network& network) { return Absorbing(network).run(); }

}  // namespace xfm::gen
