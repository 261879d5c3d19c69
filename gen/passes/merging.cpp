#include "gen/passes/passes.h"

#include <algorithm>
#include <map>
#include <set>

#include "gen/passes/rebuilding.h"

namespace xfm::gen {
namespace {

bool is_product(const Term& term) { return !magnitude(term.coefficient).is_one(); }

// A single product.
bool is_lone(const Node& of) {
  return of.op == Op::twice || (of.op == Op::combination && of.terms.size() == 1 && is_product(of.terms[0]));
}
NodeId operand(const Node& lone) { return lone.op == Op::twice ? lone.in[0] : lone.terms[0].node; }

bool only_products(const Node& of) {
  return is_lone(of) || (of.op == Op::combination && std::ranges::all_of(of.terms, is_product));
}

Products scaled(Products terms, const Constant& by) {
  for (Network::Product& term : terms) term.c = by * term.c;
  return terms;
}

class Merging : public Rebuilding {
 public:
  using Rebuilding::Rebuilding;

 private:
  Value make(NodeId id) override { return absorbs(id) ? combination(merged_terms(id)) : copy(node(id)); }

  // A product of products that nothing else uses.
  bool absorbs(NodeId id) const {
    return is_lone(node(id)) && only_products(node(operand(node(id)))) && uses_of(operand(node(id))) == 1;
  }

  Products merged_terms(NodeId id) const {
    const Node& of = node(id);
    return absorbs(id) ? scaled(merged_terms(operand(of)), terms(of)[0].c) : terms(of);
  }
};

class PairMerging : public Rebuilding {
 public:
  explicit PairMerging(const Network& draft) : Rebuilding(draft) { find_pairs(); }

 private:
  Value make(NodeId id) override {
    const Node& of = node(id);
    if (vanishing_.contains(id)) return value(operand(of));
    const auto by = scales_.find(id);
    if (by == scales_.end()) return copy(of);
    return combination(scaled(terms(of), by->second));
  }

  // u + v and u - v, each multiplied by the same constant and used in no other way; u and v consist of
  // products alone.
  void find_pairs() {
    std::map<std::pair<NodeId, NodeId>, NodeId> lone_sums;
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).op != Op::combination || !is_lone(node(id))) continue;
      const NodeId both = operand(node(id));
      if (uses_of(both) != 1 || !node(both).is_sum()) continue;
      const std::pair<NodeId, NodeId> key = std::minmax(node(both).in[0], node(both).in[1]);
      const auto [other, fresh] = lone_sums.try_emplace(key, id);
      if (!fresh) merge(key.first, key.second, id, other->second);
    }
  }

  void merge(NodeId u, NodeId v, NodeId a, NodeId b) {
    const auto fits = [&](NodeId id) { return only_products(node(id)) && uses_of(id) == 2; };
    const Constant &k = node(a).terms[0].coefficient, &l = node(b).terms[0].coefficient;
    if (!fits(u) || !fits(v) || k != l || u == v) return;
    scales_.insert({{u, k}, {v, k}});
    vanishing_.insert({a, b});
  }

  std::map<NodeId, Constant> scales_;
  std::set<NodeId> vanishing_;
};

// Linear combinations of products alone stay in binary64, and the additions that use them become linear
// combinations.
class Unrounding : public Rebuilding {
 public:
  explicit Unrounding(const Network& draft) : Rebuilding(draft), unrounded_(size()) {
    for (NodeId id = 0; id < size(); ++id)
      unrounded_[id] = node(id).op == Op::combination && only_products(node(id));
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).is_sum()) continue;
      for (const NodeId in : operands(node(id))) unrounded_[in] = false;
    }
    for (const Value& output : draft.outputs()) unrounded_[output.node] = false;
  }

 private:
  Value make(NodeId id) override {
    const Node& of = node(id);
    if (unrounded_[id]) return combination(terms(of), Finish::unrounded);
    if (!of.is_sum() || (!unrounded_[of.in[0]] && !unrounded_[of.in[1]])) return copy(of);
    const Constant one = constant("1", 1);
    return combination({{one, value(of.in[0])}, {of.op == Op::sub ? -one : one, value(of.in[1])}});
  }

  Sequence<bool> unrounded_;
};

}  // namespace

std::unique_ptr<Network> merged(const Network& draft) { return Merging(draft).run(); }

std::unique_ptr<Network> merged_pairs(const Network& draft) { return PairMerging(draft).run(); }

std::unique_ptr<Network> unrounded(const Network& draft) { return Unrounding(draft).run(); }

}  // namespace xfm::gen
