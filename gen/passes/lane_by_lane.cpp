#include <cmath>
#include <stdexcept>
#include <utility>

#include "gen/passes/passes.h"

namespace xfm::gen {
namespace {

// Every lane becomes a value of its own. Signs go through products and conversions; through a sum only as far
// as it stays the same sum.
class LaneByLane {
 public:
  explicit LaneByLane(const Network& old)
      : old_(old), made_(std::make_unique<Network>(1, old.rounding())), lanes_(old.nodes().size()) {}

  std::unique_ptr<Network> run() {
    const Sequence<Sequence<bool>> live = live_lanes(old_);
    for (NodeId id = 0; id < lanes_.size(); ++id) {
      lanes_[id] = Sequence<Value>(live[id].size());
      for (int l = 0; l < live[id].size(); ++l)
        if (live[id][l]) lanes_[id][l] = value(old_.node(id), l);
    }
    for (const Store& store : old_.stores()) {
      if (store.node < 0) {
        made_->store_zero(store.lanes[0]);
        continue;
      }
      for (int l = 0; l < store.lanes.size(); ++l)
        if (store.lanes[l] >= 0) made_->store(plain(lanes_[store.node][l]), store.lanes[l]);
    }
    return std::move(made_);
  }

 private:
  Value value(const Node& node, int l) {
    const auto in = [&](std::size_t operand) { return lanes_[node.in[operand]][l]; };
    switch (node.op) {
      case Op::load:
        if (node.lanes[l] < 0) throw std::logic_error("an idle lane of a load is used");
        return made_->load(node.lanes[l]);
      case Op::permute: {
        const Place from = old_.source(node, l);
        return lanes_[from.node][from.lane];
      }
      case Op::sign_flip:
        return node.lanes[l] == 1 ? -in(0) : in(0);
      case Op::add:
        return sum(in(0), in(1));
      case Op::sub:
        return sum(in(0), node.subtracts(l) ? -in(1) : in(1));
      case Op::mul:
        return product(node.constant(l), in(0));
      case Op::twice:
        return made_->twice(in(0));
      case Op::factor:
        return made_->factor(in(0));
      case Op::minus:
        return made_->minus(plain(in(0)));
      case Op::widen:
        return made_->widen(in(0));
      case Op::narrow:
        return made_->narrow(in(0));
      default:
        throw std::logic_error("a linear combination was not lowered");
    }
  }

  // The value itself, by a sign flip if only its negative is there.
  Value plain(Value v) { return v.negative ? made_->flip_signs(-v, {1}) : v; }

  // -a - b is not -(a + b) where that is zero, and a - b is not -(b - a).
  Value sum(Value a, Value b) {
    if (a.negative && b.negative) a = plain(a);
    if (a.negative) std::swap(a, b);
    return b.negative ? made_->subtract(a, -b, {1}) : made_->add(a, b);
  }

  // By 0 too, which gives zeros with signs, and NaN.
  Value product(const Constant& c, Value v) {
    const bool negative = std::signbit(static_cast<double>(c.value));
    if (magnitude(c).is_one()) return negative ? -v : v;
    const Value of_magnitude =
        made_->mul(Sequence<Constant>{c.is_zero() ? constant("0", 0) : magnitude(c)}, v);
    return negative ? -of_magnitude : of_magnitude;
  }

  const Network& old_;
  std::unique_ptr<Network> made_;
  Sequence<Sequence<Value>> lanes_;
};

}  // namespace

std::unique_ptr<Network> lane_by_lane(const Network& network) { return LaneByLane(network).run(); }

}  // namespace xfm::gen
