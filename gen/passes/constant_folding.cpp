#include "gen/passes/constant_folding.h"

#include "gen/network/liveness.h"

namespace xfm::gen {
namespace {

using Constants = Sequence<Constant>;

Constants times(const Constants& a, const Constants& b) {
  Constants product;
  for (int l = 0; l < std::max(a.size(), b.size()); ++l)
    product.push_back(a[a.size() == 1 ? 0 : l] * b[b.size() == 1 ? 0 : l]);
  return product;
}

class Folding {
 public:
  explicit Folding(const Network& old)
      : old_(old),
        made_(std::make_unique<Network>(old.width(), old.rounding())),
        uses_(uses(old)),
        products_(uses_.size()),
        values_(uses_.size()) {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] > 0 && is_product(id)) ++products_[old.node(id).in[0]];
    }
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] > 0 && !vanishes(id)) value(id);
    }
    for (const Store& store : old_.stores())
      made_->repeat(store, store.node < 0 ? Value{} : value(store.node));
    return std::move(made_);
  }

 private:
  bool is_product(NodeId id) const { return old_.node(id).op == Op::mul; }
  bool is_sum(NodeId id) const { return old_.node(id).op == Op::add || old_.node(id).op == Op::sub; }

  // Only products use it.
  bool vanishes(NodeId id) const { return is_product(id) && products_[id] == uses_[id]; }

  // A sum of products that nothing else uses.
  bool distributes(NodeId id) const {
    if (uses_[id] != 1) return false;
    if (is_product(id)) return true;
    return is_sum(id) && distributes(old_.node(id).in[0]) && distributes(old_.node(id).in[1]);
  }

  Value value(NodeId id) {
    Value& known = values_[id];
    if (known.absent()) known = make(id);
    return known;
  }

  Value make(NodeId id) {
    const Node& node = old_.node(id);
    const auto in = [&](std::size_t k) { return node.in[k] < 0 ? Value{} : value(node.in[k]); };
    if (is_product(id)) return scaled(node.in[0], node.constants);
    const Value a = in(0), b = in(1);  // nodes are made in this order
    return made_->repeat(node, a, b);
  }

  Value scaled(NodeId id, const Constants& c) {
    const Node& node = old_.node(id);
    if (vanishes(id) || (is_product(id) && distributes(id)))
      return scaled(node.in[0], times(c, node.constants));
    if (is_sum(id) && distributes(id)) {
      const Value a = scaled(node.in[0], c), b = scaled(node.in[1], c);
      return node.op == Op::add ? a + b : a - b;
    }
    return c.size() == 1 ? made_->mul(c[0], value(id)) : made_->mul(c, value(id));
  }

  const Network& old_;
  std::unique_ptr<Network> made_;
  Sequence<int> uses_, products_;
  Sequence<Value> values_;
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
