#include "gen/passes/merging.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "gen/network/complex.h"
#include "gen/order/schedule.h"

namespace xfm::gen::real {
namespace {

std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }

bool is_product(const Term& term) { return !magnitude(term.coefficient).is_one(); }

// A single product.
bool is_lone(const Node& of) {
  return of.op == Op::twice || (of.op == Op::combination && of.terms.size() == 1 && is_product(of.terms[0]));
}
NodeId operand(const Node& lone) { return lone.op == Op::twice ? lone.in[0] : lone.terms[0].node; }

bool only_products(const Node& of) {
  return is_lone(of) ||
         (of.op == Op::combination && std::all_of(of.terms.begin(), of.terms.end(), is_product));
}

// A draft made anew, node by node.
class Rebuilding {
 public:
  explicit Rebuilding(const Draft& draft) : old_(draft), uses_(uses(draft)), values_(uses_.size()) {}

 protected:
  const Node& node(NodeId id) const { return old_.network->node(id); }
  NodeId size() const { return static_cast<NodeId>(uses_.size()); }
  bool live(NodeId id) const { return uses_[index(id)] > 0; }
  Value value(NodeId id) const { return values_[index(id)]; }
  void define(NodeId id, const Value& v) { values_[index(id)] = v; }

  Value copy(NodeId id) const {
    const Node& of = node(id);
    const auto in = [&](std::size_t k) { return of.in[k] < 0 ? Value{} : value(of.in[k]); };
    return of.op == Op::combination ? combination(terms(id)) : made_.network->repeat(of, in(0), in(1));
  }

  std::vector<Network::Product> terms(NodeId id) const {
    if (node(id).op == Op::twice) return {{constant("2", 2), value(node(id).in[0])}};
    std::vector<Network::Product> all;
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
  std::vector<int> uses_;

 private:
  Draft made_;
  std::vector<Value> values_;
};

std::vector<Network::Product> scaled(std::vector<Network::Product> terms, const Constant& by) {
  for (Network::Product& term : terms) term.c = by * term.c;
  return terms;
}

class Merging : Rebuilding {
 public:
  using Rebuilding::Rebuilding;

  Draft run() {
    std::vector<bool> absorbed(uses_.size(), false);
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || !is_lone(node(id))) continue;
      const NodeId inner = operand(node(id));
      absorbed[index(inner)] = only_products(node(inner)) && uses_[index(inner)] == 1;
    }
    const std::function<std::vector<Network::Product>(NodeId)> all_terms = [&](NodeId id) {
      if (!is_lone(node(id)) || !absorbed[index(operand(node(id)))]) return terms(id);
      return scaled(all_terms(operand(node(id))), node(id).terms[0].coefficient);
    };
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || absorbed[index(id)]) continue;
      define(id, is_lone(node(id)) && node(id).op == Op::combination ? combination(all_terms(id)) : copy(id));
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
  // u + v and u - v, each multiplied by the same constant and used in no other way; u and v products alone.
  void find_pairs() {
    std::map<std::pair<NodeId, NodeId>, NodeId> lone_sums;
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).op != Op::combination || !is_lone(node(id))) continue;
      const NodeId both = operand(node(id));
      if (uses_[index(both)] != 1 || (node(both).op != Op::add && node(both).op != Op::sub)) continue;
      const auto key = std::minmax(node(both).in[0], node(both).in[1]);
      const auto [other, fresh] = lone_sums.try_emplace({key.first, key.second}, id);
      if (!fresh) merge(key.first, key.second, id, other->second);
    }
  }

  void merge(NodeId u, NodeId v, NodeId a, NodeId b) {
    const auto fits = [&](NodeId id) { return only_products(node(id)) && uses_[index(id)] == 2; };
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

// Statements of products alone stay in binary64, and the additions that use them become statements.
class Keeping : Rebuilding {
 public:
  using Rebuilding::Rebuilding;

  Draft run() {
    const std::vector<bool> kept = unrounded_combinations();
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id)) continue;
      const Node& of = node(id);
      const bool adds = of.op == Op::add || of.op == Op::sub;
      if (kept[index(id)]) {
        define(id, combination(terms(id), Finish::unrounded));
      } else if (adds && (kept[index(of.in[0])] || kept[index(of.in[1])])) {
        const Constant one = constant("1", 1);
        define(id, combination({{one, value(of.in[0])}, {of.op == Op::sub ? -one : one, value(of.in[1])}}));
      } else {
        define(id, copy(id));
      }
    }
    return finished();
  }

 private:
  std::vector<bool> unrounded_combinations() const {
    std::vector<bool> kept(uses_.size(), false);
    for (NodeId id = 0; id < size(); ++id)
      kept[index(id)] = live(id) && node(id).op == Op::combination && only_products(node(id));
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id) || node(id).op == Op::add || node(id).op == Op::sub) continue;
      for (const NodeId in : operands(node(id))) kept[index(in)] = false;
    }
    for (const Value& output : old_.outputs) kept[index(output.node)] = false;
    return kept;
  }
};

}  // namespace

Draft merged(const Draft& draft) { return Merging(draft).run(); }

Draft unrounded(const Draft& draft) { return Keeping(draft).run(); }

Draft merged_pairs(const Draft& draft) { return PairMerging(draft).run(); }

}  // namespace xfm::gen::real
