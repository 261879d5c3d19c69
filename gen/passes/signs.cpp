#include "gen/passes/passes.h"

#include <algorithm>
#include <cstdint>

namespace xfm::gen {
namespace {

// A difference can be written either way round, and a linear combination with terms of both signs can be
// negated; a sum cannot. Which values to negate is a satisfiability problem, but an easy one: local search
// from the recipe's own signs (Selman, Kautz and Cohen 1994) ends after a few steps, usually with no minus
// left.
class Search {
 public:
  explicit Search(const Network& draft)
      : draft_(draft), uses_(uses(draft)), negated_(uses_.size()), users_(uses_.size()) {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] == 0) continue;
      for (const NodeId operand : operands(node(id))) users_[operand].push_back(id);
    }
  }

  Sequence<bool> run() {
    constexpr int steps_per_output = 200;
    Sequence<bool> best = negated_;
    int fewest = draft_.outputs().size() + 1;
    const int steps = steps_per_output * draft_.outputs().size();
    for (int step = 0; step < steps && fewest > 0; ++step) {
      const Sequence<NodeId> broken = broken_operations();
      const Sequence<NodeId> minus = minus_outputs();
      if (broken.empty() && minus.size() < fewest) {
        fewest = minus.size();
        best = negated_;
      }
      if (!broken.empty()) {
        repair(broken[random(broken.size())]);
      } else if (!minus.empty()) {
        negate(minus[random(minus.size())]);
      }
    }
    return best;
  }

 private:
  const Node& node(NodeId id) const { return draft_.node(id); }

  // A linear congruential generator: the same walk in every build.
  int random(int below) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<int>((state_ >> 33U) % static_cast<std::uint64_t>(below));
  }

  // No operand enters with a plus.
  bool is_broken(NodeId id) const {
    const Node& of = node(id);
    const auto plus = [&](NodeId operand, bool minus) {
      return (negated_[operand] != minus) == negated_[id];
    };
    if (of.op == Op::load) return false;
    if (of.op == Op::combination) {
      return std::none_of(of.terms.begin(), of.terms.end(),
                          [&](const Term& term) { return plus(term.node, term.coefficient.is_negative()); });
    }
    return !plus(of.in[0], false) && (of.in[1] < 0 || !plus(of.in[1], of.op == Op::sub));
  }

  Sequence<NodeId> broken_operations() const {
    Sequence<NodeId> broken;
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] > 0 && is_broken(id)) broken.push_back(id);
    }
    return broken;
  }

  Sequence<NodeId> minus_outputs() const {
    Sequence<NodeId> minus;
    for (const Value& output : draft_.outputs()) {
      if (output.negative != negated_[output.node]) minus.push_back(output.node);
    }
    return minus;
  }

  void negate(NodeId id) { negated_[id] = !negated_[id]; }

  int broken_around(NodeId id) const {
    const auto is = [&](NodeId user) { return is_broken(user); };
    return (is_broken(id) ? 1 : 0) +
           static_cast<int>(std::count_if(users_[id].begin(), users_[id].end(), is));
  }

  // Negates the operation or one of its operands: the one that breaks least, or now and then one at random.
  void repair(NodeId id) {
    Sequence<NodeId> candidates{id};
    for (const NodeId operand : operands(node(id))) {
      if (node(operand).op != Op::load) candidates.push_back(operand);
    }
    constexpr int one_in = 5;
    if (random(one_in) == 0) {
      negate(candidates[random(candidates.size())]);
      return;
    }
    const auto damage = [&](NodeId candidate) {
      const int before = broken_around(candidate);
      negate(candidate);
      const int after = broken_around(candidate);
      negate(candidate);
      return after - before;
    };
    negate(*std::min_element(candidates.begin(), candidates.end(),
                             [&](NodeId a, NodeId b) { return damage(a) < damage(b); }));
  }

  const Network& draft_;
  Sequence<int> uses_;
  Sequence<bool> negated_;
  Sequence<Sequence<NodeId>> users_;
  std::uint64_t state_ = 1;
};

}  // namespace

Sequence<bool> negated_values(const Network& draft) { return Search(draft).run(); }

}  // namespace xfm::gen
