#include "gen/real/merge.h"

#include <algorithm>
#include <stdexcept>

#include "gen/complex.h"

namespace xfm::gen::real {
namespace {

class Merging {
 public:
  explicit Merging(const Draft& draft)
      : old_(draft), uses_(uses(draft)), absorbed_(uses_.size(), false), values_(uses_.size()) {
    for (NodeId id = 0; id < static_cast<NodeId>(uses_.size()); ++id) {
      if (uses_[index(id)] > 0 && is_lone(id)) absorb(operand(id));
    }
  }

  Draft run() {
    for (NodeId id = 0; id < static_cast<NodeId>(uses_.size()); ++id) {
      if (uses_[index(id)] > 0 && !absorbed_[index(id)]) values_[index(id)] = make(id);
    }
    for (const Value& output : old_.outputs) {
      const Value v = value(output.node);
      made_.outputs.push_back(output.negative ? -v : v);
    }
    return std::move(made_);
  }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  const Node& node(NodeId id) const { return old_.network->node(id); }
  Value value(NodeId id) const { return values_[index(id)]; }

  // A single product.
  bool is_lone(NodeId id) const {
    const Node& of = node(id);
    return of.op == Op::twice ||
           (of.op == Op::sum && of.terms.size() == 1 && !magnitude(of.terms[0].coefficient).is_one());
  }
  NodeId operand(NodeId lone) const {
    return node(lone).op == Op::twice ? node(lone).in[0] : node(lone).terms[0].node;
  }

  bool only_products(NodeId id) const {
    const std::vector<Term>& terms = node(id).terms;
    return is_lone(id) ||
           (node(id).op == Op::sum && std::none_of(terms.begin(), terms.end(), [](const Term& t) {
              return magnitude(t.coefficient).is_one();
            }));
  }

  void absorb(NodeId id) {
    if (only_products(id) && uses_[index(id)] == 1) absorbed_[index(id)] = true;
  }

  Value make(NodeId id) {
    const Node& of = node(id);
    switch (of.op) {
      case Op::load:
        return made_.network->load(of.lanes);
      case Op::add:
        return value(of.in[0]) + value(of.in[1]);
      case Op::sub:
        return value(of.in[0]) - value(of.in[1]);
      case Op::twice:
        return made_.network->twice(value(of.in[0]));
      case Op::sum:
        return statement(terms(id));
      default:
        throw std::logic_error("a draft holds sums and statements alone");
    }
  }

  // The terms of a statement, what it absorbs multiplied out.
  std::vector<Network::Product> terms(NodeId id) const {
    std::vector<Network::Product> all;
    if (node(id).op == Op::twice) {
      all.push_back({constant("2", 2), value(node(id).in[0])});
    } else if (is_lone(id) && absorbed_[index(operand(id))]) {
      all = terms(operand(id));
      for (Network::Product& term : all) term.c = node(id).terms[0].coefficient * term.c;
    } else {
      for (const Term& term : node(id).terms) all.push_back({term.coefficient, value(term.node)});
    }
    return all;
  }

  const Draft& old_;
  Draft made_;
  std::vector<int> uses_;
  std::vector<bool> absorbed_;
  std::vector<Value> values_;
};

}  // namespace

Draft merged(const Draft& draft) { return Merging(draft).run(); }

}  // namespace xfm::gen::real
