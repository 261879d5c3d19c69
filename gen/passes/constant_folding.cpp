#include "gen/passes/constant_folding.h"

#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

using Constants = std::vector<Constant>;

Constants times(const Constants& a, const Constants& b) {
  Constants product;
  for (std::size_t l = 0; l < std::max(a.size(), b.size()); ++l) {
    product.push_back(a[a.size() == 1 ? 0 : l] * b[b.size() == 1 ? 0 : l]);
  }
  return product;
}

class Folding {
 public:
  explicit Folding(const Network& old)
      : old_(old),
        made_(std::make_unique<Network>(old.width(), old.rounding())),
        uses_(old.nodes().size(), 0),
        products_(old.nodes().size(), 0),
        values_(old.nodes().size()) {
    for (const Step& step : schedule(old)) {
      if (step.node < 0) continue;
      const bool product = old.node(step.node).op == Op::mul;
      for (const NodeId operand : operands(old.node(step.node))) {
        ++uses_[index(operand)];
        if (product) ++products_[index(operand)];
      }
    }
    for (const Store& store : old.stores()) ++uses_[index(store.node)];
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < static_cast<NodeId>(values_.size()); ++id) {
      if (uses_[index(id)] > 0 && !vanishes(id)) value(id);
    }
    for (const Store& store : old_.stores()) made_->store(value(store.node), store.lanes);
    return std::move(made_);
  }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }

  bool is_product(NodeId id) const { return old_.node(id).op == Op::mul; }
  bool is_sum(NodeId id) const { return old_.node(id).op == Op::add || old_.node(id).op == Op::sub; }

  // Only products use it.
  bool vanishes(NodeId id) const { return is_product(id) && products_[index(id)] == uses_[index(id)]; }

  // A sum of products that nothing else uses.
  bool distributes(NodeId id) const {
    if (uses_[index(id)] != 1) return false;
    if (is_product(id)) return true;
    return is_sum(id) && distributes(old_.node(id).in[0]) && distributes(old_.node(id).in[1]);
  }

  Value value(NodeId id) {
    Value& known = values_[index(id)];
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
  std::vector<int> uses_, products_;
  std::vector<Value> values_;
};

}  // namespace

std::unique_ptr<Network> fold(const Network& network) {
  std::unique_ptr<Network> folded = Folding(network).run();
  while (true) {
    std::unique_ptr<Network> again = Folding(*folded).run();
    if (schedule(*again).size() == schedule(*folded).size()) return again;
    folded = std::move(again);
  }
}

}  // namespace xfm::gen
