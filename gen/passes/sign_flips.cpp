#include "gen/passes/passes.h"

#include <algorithm>

#include "gen/passes/rebuilding.h"

namespace xfm::gen {
namespace {

class Absorbing : public Rebuilding {
 public:
  Absorbing(const Network& old, Carriers carriers) : Rebuilding(old), carriers_(carriers) {}

 private:
  Value make(NodeId id) override {
    const Node& of = node(id);
    return of.op == Op::sign_flip && carries(of.in[0]) ? flipped(of.in[0], of.lanes) : repeat(of);
  }

  // Every lane of one value, in another order.
  bool permutes(const Node& of) const {
    Sequence<bool> seen(old_.width());
    for (int l = 0; l < seen.size(); ++l) seen[old_.source(of, l).lane] = true;
    return of.in[0] == of.in[1] && std::all_of(seen.begin(), seen.end(), [](bool s) { return s; });
  }

  // Products, sums of products and permutations of their lanes, none of them used twice.
  bool carries(NodeId id) const {
    const Node& of = node(id);
    if (uses_of(id) != 1) return false;
    if (of.op == Op::permute) return permutes(of) && carries(of.in[0]);
    return of.op == Op::mul ||
           (carriers_ == Carriers::sums_too && of.is_sum() && carries(of.in[0]) && carries(of.in[1]));
  }

  // The value with the signs of the marked lanes changed.
  Value flipped(NodeId id, const PerLane& signs) {
    const Node& of = node(id);
    if (of.op == Op::mul) return made_->mul(flipped(of, signs), value(of.in[0]));
    PerLane sources = signs;
    if (of.op == Op::permute) {
      for (int l = 0; l < signs.size(); ++l) sources[old_.source(of, l).lane] = signs[l];
    }
    // One by one: nodes are made in this order.
    const Value a = flipped(of.in[0], sources), b = flipped(of.in[1], sources);
    return made_->repeat(of, a, b);
  }

  static Sequence<Constant> flipped(const Node& product, const PerLane& signs) {
    Sequence<Constant> lanes;
    for (int l = 0; l < signs.size(); ++l)
      lanes.push_back(signs[l] == 1 ? -product.constant(l) : product.constant(l));
    return lanes;
  }

  Carriers carriers_;
};

}  // namespace

std::unique_ptr<Network> absorb_sign_flips(const Network& network, Carriers carriers) {
  return Absorbing(network, carriers).run();
}

}  // namespace xfm::gen
