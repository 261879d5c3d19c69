#include "gen/passes/passes.h"

#include <algorithm>

#include "gen/passes/rebuilding.h"

namespace xfm::gen {
namespace {

using Constants = Sequence<Constant>;

Constants times(const Constants& a, const Constants& b) {
  Constants product;
  for (int l = 0; l < std::max(a.size(), b.size()); ++l)
    product.push_back(a[a.size() == 1 ? 0 : l] * b[b.size() == 1 ? 0 : l]);
  return product;
}

class Folding : public Rebuilding {
 public:
  explicit Folding(const Network& old) : Rebuilding(old), products_(size()) {
    for (NodeId id = 0; id < size(); ++id) {
      if (live(id) && is_product(id)) ++products_[node(id).in[0]];
    }
  }

 private:
  Value make(NodeId id) override {
    return is_product(id) ? scaled(node(id).in[0], node(id).constants) : repeat(node(id));
  }

  bool is_product(NodeId id) const { return node(id).op == Op::mul; }

  // Only products use it.
  bool vanishes(NodeId id) const { return is_product(id) && products_[id] == uses_of(id); }

  // A sum of products that nothing else uses.
  bool distributes(NodeId id) const {
    if (uses_of(id) != 1) return false;
    return is_product(id) ||
           (node(id).is_sum() && distributes(node(id).in[0]) && distributes(node(id).in[1]));
  }

  Value scaled(NodeId id, const Constants& c) {
    const Node& of = node(id);
    if (vanishes(id) || (is_product(id) && distributes(id))) return scaled(of.in[0], times(c, of.constants));
    if (!of.is_sum() || !distributes(id)) return made_->mul(c, value(id));
    // One by one: nodes are made in this order.
    const Value a = scaled(of.in[0], c), b = scaled(of.in[1], c);
    return made_->repeat(of, a, b);
  }

  Sequence<int> products_;
};

}  // namespace

std::unique_ptr<Network> fold_constants(const Network& network) {
  std::unique_ptr<Network> folded = Folding(network).run();
  while (true) {
    std::unique_ptr<Network> again = Folding(*folded).run();
    if (instructions(*again) == instructions(*folded)) return again;
    folded = std::move(again);
  }
}

}  // namespace xfm::gen
