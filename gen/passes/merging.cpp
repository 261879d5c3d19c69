#include "gen/passes/merging.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "gen/network/complex.h"

namespace xfm::gen {
namespace {

bool is_product(const Term& term) { return !magnitude(term.coefficient).is_one(); }

// A single product.
bool is_lone(const Node& of) {
  return of.op == Op::twice || (of.op == Op::combination && of.terms.size() == 1 && is_product(of.terms[0]));
}
NodeId operand(const Node& lone) { return lone.op == Op::twice ? lone.in[0] : lone.terms[0].node; }
Constant coefficient(const Node& lone) {
  return lone.op == Op::twice ? constant("2", 2) : lone.terms[0].coefficient;
}

bool only_products(const Node& of) {
  return is_lone(of) ||
         (of.op == Op::combination && std::all_of(of.terms.begin(), of.terms.end(), is_product));
}

// Rebuilds a draft node by node.
class Rebuilding {
 public:
  explicit Rebuilding(const Draft& draft) : old_(draft), uses_(uses(draft)), values_(uses_.size()) {}

 protected:
  const Node& node(NodeId id) const { return old_.network->node(id); }
  NodeId size() const { return uses_.size(); }
  bool live(NodeId id) const { return uses_[id] > 0; }
  Value value(NodeId id) const { return values_[id]; }
  void define(NodeId id, const Value& v) { values_[id] = v; }

  Value copy(NodeId id) const {
    const Node& of = node(id);
    const auto in = [&](std::size_t k) { return of.in[k] < 0 ? Value{} : value(of.in[k]); };
    return of.op == Op::combination ? combination(terms(id)) : made_.network->repeat(of, in(0), in(1));
  }

  Products terms(NodeId id) const {
    if (is_lone(node(id))) return {{coefficient(node(id)), value(operand(node(id)))}};
    Products all;
    for (const Term& term : node(id).terms) all.push_back({term.coefficient, value(term.node)});
    return all;
  }

  Draft finished() {
    for (const Value& output : old_.outputs) {
      const Value v = value(output.node);
      made_.outputs.push_back(output.negative ? -v : v);
    }
    return std::move(made_);
  }

  const Draft& old_;
  Sequence<int> uses_;

 private:
  Draft made_;
  Sequence<Value> values_;
};

Products scaled(Products terms, const Constant& by) {
  for (Network::Product& term : terms) term.c = by * term.c;
  return terms;
}

class Merging : Rebuilding {
 public:
  using Rebuilding::Rebuilding;

  Draft run() {
    Sequence<bool> absorbed(uses_.size());
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || !is_lone(node(id))) continue;
      const NodeId inner = operand(node(id));
      absorbed[inner] = only_products(node(inner)) && uses_[inner] == 1;
    }
    const auto absorbs = [&](NodeId id) -> bool { return is_lone(node(id)) && absorbed[operand(node(id))]; };
    const std::function<Products(NodeId)> all_terms = [&](NodeId id) {
      return absorbs(id) ? scaled(all_terms(operand(node(id))), coefficient(node(id))) : terms(id);
    };
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || absorbed[id]) continue;
      define(id, absorbs(id) ? combination(all_terms(id)) : copy(id));
    }
    return finished();
  }
};

class PairMerging : Rebuilding {
 public:
  using Rebuilding::Rebuilding;

  Draft run() {
    find_pairs();
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id)) continue;
      if (const auto by = scales_.find(id); by != scales_.end()) {
        define(id, combination(scaled(terms(id), by->second)));
      } else if (vanishing_.contains(id)) {
        define(id, value(operand(node(id))));
      } else {
        define(id, copy(id));
      }
    }
    return finished();
  }

 private:
  // u + v and u - v, each multiplied by the same constant and used in no other way; u and v consist of
  // products alone.
  void find_pairs() {
    std::map<std::pair<NodeId, NodeId>, NodeId> lone_sums;
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).op != Op::combination || !is_lone(node(id))) continue;
      const NodeId both = operand(node(id));
      if (uses_[both] != 1 || (node(both).op != Op::add && node(both).op != Op::sub)) continue;
      const auto key = std::minmax(node(both).in[0], node(both).in[1]);
      const auto [other, fresh] = lone_sums.try_emplace({key.first, key.second}, id);
      if (!fresh) merge(key.first, key.second, id, other->second);
    }
  }

  void merge(NodeId u, NodeId v, NodeId a, NodeId b) {
    const auto fits = [&](NodeId id) { return only_products(node(id)) && uses_[id] == 2; };
    const Constant &k = node(a).terms[0].coefficient, &l = node(b).terms[0].coefficient;
    if (!fits(u) || !fits(v) || k != l || u == v) return;
    scales_.insert({u, k});
    scales_.insert({v, k});
    vanishing_.insert(a);
    vanishing_.insert(b);
  }

  std::map<NodeId, Constant> scales_;
  std::set<NodeId> vanishing_;
};

// Linear combinations of products alone stay in binary64, and the additions that use them become linear
// combinations.
class Unrounding : Rebuilding {
 public:
  using Rebuilding::Rebuilding;

  Draft run() {
    const Sequence<bool> unrounded = unrounded_combinations();
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id)) continue;
      const Node& of = node(id);
      const bool adds = of.op == Op::add || of.op == Op::sub;
      if (unrounded[id]) {
        define(id, combination(terms(id), Finish::unrounded));
      } else if (adds && (unrounded[of.in[0]] || unrounded[of.in[1]])) {
        const Constant one = constant("1", 1);
        define(id, combination({{one, value(of.in[0])}, {of.op == Op::sub ? -one : one, value(of.in[1])}}));
      } else {
        define(id, copy(id));
      }
    }
    return finished();
  }

 private:
  Sequence<bool> unrounded_combinations() const {
    Sequence<bool> unrounded(uses_.size());
    for (NodeId id = 0; id < size(); ++id)
      unrounded[id] = live(id) && node(id).op == Op::combination && only_products(node(id));
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).op == Op::add || node(id).op == Op::sub) continue;
      for (const NodeId in : operands(node(id))) unrounded[in] = false;
    }
    for (const Value& output : old_.outputs) unrounded[output.node] = false;
    return unrounded;
  }
};

}  // namespace

Draft merged(const Draft& draft) { return Merging(draft).run(); }

Draft unrounded(const Draft& draft) { return Unrounding(draft).run(); }

Draft merged_pairs(const Draft& draft) { return PairMerging(draft).run(); }

}  // namespace xfm::gen
