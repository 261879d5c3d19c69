#include "gen/packing/paired.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "gen/packing/pairs.h"

namespace xfm::gen {
namespace {

// Whether all lanes of a value leave by this store: a value may also leave lane by lane.
bool leaves_whole(const Store& store) {
  return store.node >= 0 && std::find(store.lanes.begin(), store.lanes.end(), -1) == store.lanes.end();
}

// The graph of a network's operations as the search wants it. A unit is a node of the network.
class Graph {
 public:
  Graph(const Network& network, const Numbering& numbering, const InstructionCosts& costs)
      : network_(network), numbering_(numbering), costs_(costs) {
    pair_costs_ = {.kind = {},
                   .load = costs.load,
                   .merged_load = costs.merged_load,
                   .shuffle = costs.shuffle,
                   .flip = costs.flip,
                   .store = costs.store,
                   .upper_store = costs.upper_store,
                   .alternating_signs = 0};
    for (NodeId id = 0; id < network.nodes().size(); ++id) units_.push_back(unit(id));
    for (const Store& store : network.stores()) {
      if (leaves_whole(store)) leaving_.push_back({store.node, place(store.lanes, numbering.outputs)});
    }
  }

  const Sequence<Unit>& units() const { return units_; }
  Sequence<Pair> pairs() const { return find_pairs(units_, leaving_, pair_costs_); }

  /// The units that leave by one store: low and high.
  std::set<Vector> joint(const Sequence<Pair>& pairs) const {
    std::map<int, int> at;
    for (const Leaving& leaving : leaving_) at[leaving.place] = leaving.unit;
    std::set<Vector> joint;
    for (const int place : joint_stores(pairs, units_, leaving_, pair_costs_))
      joint.insert({at.at(place), at.at(place + 1)});
    return joint;
  }

  /// All that the search depends on.
  Sequence<int> key() const {
    Sequence<int> key = pair_costs_.kind;
    for (const Unit& unit : units_) {
      key.insert(key.end(), {unit.kind, unit.in[0], unit.in[1], unit.commutative, unit.subtracts,
                             unit.constant_product, unit.load});
    }
    for (const Leaving& leaving : leaving_) key.insert(key.end(), {leaving.unit, leaving.place});
    key.push_back(costs_.upper_store);
    return key;
  }

 private:
  // Where a value of several lanes is in memory, such that neighbours have successive numbers. Starts at even
  // and at odd elements are numbered apart, and so are lanes that are not side by side.
  int place(const PerLane& lanes, const PerLane& numbers) {
    const int width = lanes.size(), far = 1 << 10, first = lanes[0] < 0 ? -1 : number(lanes[0], numbers);
    for (int l = 0; l < width; ++l) {
      if (lanes[l] < 0 || number(lanes[l], numbers) != first + l) return far * ++scattered_;
    }
    return first / width + first % width * (far / width);
  }

  Unit unit(NodeId id) {
    const Node& node = network_.node(id);
    Unit unit{.kind = kind(id), .in = node.in};
    unit.commutative = node.op == Op::add;
    unit.subtracts = node.op == Op::sub;
    unit.constant_product = node.op == Op::mul;
    if (node.op == Op::load) unit.load = place(node.lanes, numbering_.inputs);
    return unit;
  }

  // Additions and subtractions are one kind, products by constants another. Permutations must pick alike.
  int kind(NodeId id) {
    const Node& node = network_.node(id);
    const auto type = [&](NodeId of) {
      return of < 0 ? 0 : 2 * network_.width(of) + (network_.inner(of) ? 1 : 0);
    };
    const bool sum = node.op == Op::add || node.op == Op::sub;
    const bool alternating = node.op == Op::sub && network_.width(id) > 1 && !node.lanes.empty();
    PerLane key{static_cast<int>(sum ? Op::add : node.op), type(id), type(node.in[0]), type(node.in[1])};
    if (node.op == Op::permute || node.op == Op::sign_flip || alternating)
      key.insert(key.end(), node.lanes.begin(), node.lanes.end());
    const auto [known, fresh] = kinds_.try_emplace(key, pair_costs_.kind.size());
    if (fresh) pair_costs_.kind.push_back(cost(node.op));
    return known->second;
  }

  int cost(Op op) const {
    switch (op) {
      case Op::load:
        return costs_.load;
      case Op::permute:
        return costs_.shuffle;
      case Op::sign_flip:
        return costs_.flip;
      case Op::mul:
      case Op::factor:
        return costs_.product;
      case Op::widen:
      case Op::narrow:
        return costs_.conversion;
      default:
        return costs_.add;
    }
  }

  const Network& network_;
  const Numbering& numbering_;
  const InstructionCosts& costs_;
  PairCosts pair_costs_;
  std::map<PerLane, int> kinds_;
  Sequence<Unit> units_;
  Sequence<Leaving> leaving_;
  int scattered_ = 0;
};

// Where an old node is in the new network: from this lane of this node on.
struct Held {
  NodeId node;
  int lane;
};

// Builds the network of the pairs.
class Builder {
 public:
  Builder(const Network& old, const Graph& graph, const Sequence<Pair>& pairs)
      : old_(old),
        made_(std::make_unique<Network>(2 * old.width(), old.rounding())),
        uses_(uses(old)),
        of_(uses_.size(), Pair{-1, -1}),
        operands_(uses_.size()),
        joint_(graph.joint(pairs)),
        negated_(uses_.size()),
        held_(uses_.size(), Held{-1, 0}) {
    for (const Pair& pair : pairs) {
      of_[pair.low] = of_[pair.high] = pair;
      operands_[pair.low] = operand_vectors(graph.units(), pair);
    }
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < uses_.size(); ++id) absorb_sign(id);
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] > 0 && old_.node(id).op != Op::load) held(id);
    }
    for (int s = 0; s < old_.stores().size(); ++s) store(s);
    return std::move(made_);
  }

 private:
  bool paired(NodeId id) const { return of_[id].low >= 0; }
  bool is_pair(NodeId low, NodeId high) const { return of_[low].low == low && of_[low].high == high; }
  int width(NodeId id) const { return old_.width(id); }
  Value value(NodeId id) { return {made_.get(), id, false}; }

  bool subtracts(NodeId id) const { return old_.node(id).op == Op::sub && !negated_[old_.node(id).in[1]]; }

  // Lanes that add beside lanes that subtract are one instruction only where they alternate, the low one
  // subtracting. Otherwise the sign goes into the constant of a product that nothing else uses.
  void absorb_sign(NodeId id) {
    if (!paired(id) || of_[id].low != id) return;
    const NodeId low = id, high = of_[id].high;
    const bool mixed = subtracts(low) != subtracts(high);
    if (!mixed || alternates(low, high)) return;
    const auto [minuend, other] = operands_[low][1];
    const auto carries = [&](NodeId product) {
      return old_.node(product).op == Op::mul && uses_[product] == 1;
    };
    if (!carries(minuend) || !carries(other) || !is_pair(minuend, other)) return;
    negated_[subtracts(low) ? minuend : other] = true;
  }

  bool alternates(NodeId low, NodeId high) const {
    const PerLane lanes = signs(low, high);
    for (int l = 0; l < lanes.size(); ++l) {
      if (lanes[l] != (l + 1) % 2) return false;
    }
    return true;
  }

  // For each lane of a pair of sums whether it subtracts.
  PerLane signs(NodeId low, NodeId high) const {
    PerLane lanes;
    for (const NodeId id : {low, high}) {
      const PerLane& own = old_.node(id).lanes;
      for (int l = 0; l < width(id); ++l) {
        const bool lane = own.empty() || old_.node(id).op == Op::add ? true : own[l] == 1;
        lanes.push_back(subtracts(id) && lane ? 1 : 0);
      }
    }
    return lanes;
  }

  // The node of the new network that holds an old one; made at the first demand.
  Held held(NodeId id) {
    if (held_[id].node >= 0) return held_[id];
    if (!paired(id)) return held_[id] = {single(id), 0};
    const NodeId low = of_[id].low, high = of_[id].high;
    const NodeId both = pair(low, high);
    held_[low] = {both, 0};
    held_[high] = {both, width(low)};
    return held_[id];
  }

  // Two old nodes side by side.
  NodeId together(NodeId low, NodeId high) {
    const Node &a = old_.node(low), &b = old_.node(high);
    if (is_pair(low, high)) return held(low).node;
    if (a.op == Op::load && b.op == Op::load) return made_->load(concatenated(a.lanes, b.lanes)).node;
    const Held first = held(low), second = held(high);
    PerLane picks;
    for (int l = 0; l < width(low); ++l) picks.push_back(first.lane + l);
    for (int l = 0; l < width(high); ++l) picks.push_back(made_->width(first.node) + second.lane + l);
    return made_->permute(value(first.node), value(second.node), picks).node;
  }

  // An old node by itself.
  Value alone(NodeId id) {
    if (id < 0) return {};
    const Held at = held(id);
    if (made_->width(at.node) == width(id)) return value(at.node);
    PerLane picks;
    for (int l = 0; l < width(id); ++l) picks.push_back(at.lane + l);
    return made_->permute(value(at.node), value(at.node), picks);
  }

  NodeId single(NodeId id) {
    const Node& node = old_.node(id);
    const Value a = alone(node.in[0]), b = alone(node.in[1]);
    return made_->repeat(node, a, b).node;
  }

  static PerLane concatenated(PerLane a, const PerLane& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  }

  NodeId pair(NodeId low, NodeId high) {
    const Node& node = old_.node(low);
    if (node.op == Op::load) return made_->load(concatenated(node.lanes, old_.node(high).lanes)).node;
    const auto operand = [&](const std::array<int, 2>& units) {
      return units[0] < 0 ? Value{} : value(together(units[0], units[1]));
    };
    const Value a = operand(operands_[low][0]), b = operand(operands_[low][1]);
    switch (node.op) {
      case Op::add:
      case Op::sub:
        return sum(low, high, a, b).node;
      case Op::mul:
        return made_->mul(constants(low, high), a).node;
      case Op::permute:
        return made_->permute(a, b, picks(node)).node;
      case Op::sign_flip:
        return flipped(a, concatenated(node.lanes, old_.node(high).lanes)).node;
      default:
        return made_->repeat(node, a, b).node;
    }
  }

  Value sum(NodeId low, NodeId high, Value a, Value b) {
    const PerLane lanes = signs(low, high);
    const auto subtracting = std::count(lanes.begin(), lanes.end(), 1);
    if (subtracting == 0) return made_->add(a, b);
    if (subtracting == lanes.size() || alternates(low, high)) return made_->subtract(a, b, lanes);
    return made_->add(a, flipped(b, lanes));
  }

  // Two sign flips in a row are one.
  Value flipped(Value v, PerLane lanes) {
    const Node& node = made_->node(v.node);
    if (node.op != Op::sign_flip) return made_->flip_signs(v, lanes);
    for (int l = 0; l < lanes.size(); ++l) lanes[l] ^= node.lanes[l];
    const Value source = value(node.in[0]);
    return std::count(lanes.begin(), lanes.end(), 1) == 0 ? source : made_->flip_signs(source, lanes);
  }

  Sequence<Constant> constants(NodeId low, NodeId high) const {
    Sequence<Constant> all;
    for (const NodeId id : {low, high}) {
      for (int l = 0; l < width(id); ++l) {
        const Constant& c = old_.node(id).constant(l);
        all.push_back(signed_constant(c, negated_[id]));
      }
    }
    const bool alike = std::all_of(all.begin(), all.end(), [&](const Constant& c) { return c == all[0]; });
    return alike ? Sequence<Constant>{all[0]} : all;
  }

  // The same picks in each half. Operands of a pair hold first the low unit's operand, then the high one's.
  PerLane picks(const Node& node) const {
    const int a = width(node.in[0]), b = width(node.in[1]);
    PerLane all;
    for (int half = 0; half < 2; ++half) {
      for (const int pick : node.lanes)
        all.push_back(pick < a ? half * a + pick : 2 * a + half * b + (pick - a));
    }
    return all;
  }

  // Neighbours in memory leave together with the lower one.
  void store(int s) {
    const Store& store = old_.stores()[s];
    if (store.node < 0) {
      made_->store_zero(store.lanes[0]);
    } else if (const auto with = partner(s, true)) {
      const Store& other = old_.stores()[*with];
      made_->store(value(together(store.node, other.node)), concatenated(store.lanes, other.lanes));
    } else if (!partner(s, false)) {
      const Held at = held(store.node);
      PerLane lanes(made_->width(at.node), -1);
      std::copy(store.lanes.begin(), store.lanes.end(), lanes.begin() + at.lane);
      made_->store(value(at.node), lanes);
    }
  }

  // The store of the neighbour behind or before this one, if they leave together.
  std::optional<int> partner(int s, bool behind) const {
    const Store& store = old_.stores()[s];
    for (int t = 0; t < old_.stores().size(); ++t) {
      const Store& other = old_.stores()[t];
      const Store &low = behind ? store : other, &high = behind ? other : store;
      const bool adjacent = high.lanes[0] == low.lanes.back() + 1;
      if (adjacent && low.lanes.size() == high.lanes.size() && joint_.contains({low.node, high.node}))
        return t;
    }
    return std::nullopt;
  }

  const Network& old_;
  std::unique_ptr<Network> made_;
  Sequence<int> uses_;
  Sequence<Pair> of_;                         // the pair of each unit
  Sequence<std::array<Vector, 2>> operands_;  // of each pair, by its low unit
  std::set<Vector> joint_;
  Sequence<bool> negated_;
  Sequence<Held> held_;
};

}  // namespace

std::unique_ptr<Network> Pairing::run(const Network& network, const Numbering& numbering,
                                      const InstructionCosts& costs) {
  const Graph graph(network, numbering, costs);
  const auto [known, fresh] = known_.try_emplace(graph.key());
  if (fresh) known->second = graph.pairs();
  return Builder(network, graph, known->second).run();
}

}  // namespace xfm::gen
