#include "gen/passes/signs.h"

#include <algorithm>
#include <cstdint>

#include "gen/order/schedule.h"

namespace xfm::gen::real {
namespace {

class Search {
 public:
  explicit Search(const Draft& draft)
      : draft_(draft), uses_(uses(draft)), turned_(uses_.size(), false), users_(uses_.size()) {
    for (NodeId id = 0; id < static_cast<NodeId>(uses_.size()); ++id) {
      if (uses_[index(id)] == 0) continue;
      for (const NodeId operand : operands(node(id))) users_[index(operand)].push_back(id);
    }
  }

  std::vector<bool> run() {
    constexpr int steps_per_output = 200;
    std::vector<bool> best = turned_;
    std::size_t fewest = draft_.outputs.size() + 1;
    const int steps = steps_per_output * static_cast<int>(draft_.outputs.size());
    for (int step = 0; step < steps && fewest > 0; ++step) {
      const std::vector<NodeId> broken = broken_operations();
      const std::vector<NodeId> minus = minus_outputs();
      if (broken.empty() && minus.size() < fewest) {
        fewest = minus.size();
        best = turned_;
      }
      if (!broken.empty()) {
        repair(broken[random(broken.size())]);
      } else if (!minus.empty()) {
        flip(minus[random(minus.size())]);
      }
    }
    return best;
  }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  const Node& node(NodeId id) const { return draft_.network->node(id); }

  // A linear congruential generator: the same walk in every build.
  std::size_t random(std::size_t below) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::size_t>(state_ >> 33U) % below;
  }

  // No operand enters with a plus.
  bool is_broken(NodeId id) const {
    const Node& of = node(id);
    const auto plus = [&](NodeId operand, bool minus) {
      return (turned_[index(operand)] != minus) == turned_[index(id)];
    };
    if (of.op == Op::load) return false;
    if (of.op == Op::combination) {
      return std::none_of(of.terms.begin(), of.terms.end(),
                          [&](const Term& term) { return plus(term.node, term.coefficient.is_negative()); });
    }
    return !plus(of.in[0], false) && (of.in[1] < 0 || !plus(of.in[1], of.op == Op::sub));
  }

  std::vector<NodeId> broken_operations() const {
    std::vector<NodeId> broken;
    for (NodeId id = 0; id < static_cast<NodeId>(uses_.size()); ++id) {
      if (uses_[index(id)] > 0 && is_broken(id)) broken.push_back(id);
    }
    return broken;
  }

  std::vector<NodeId> minus_outputs() const {
    std::vector<NodeId> minus;
    for (const Value& output : draft_.outputs) {
      if (output.negative != turned_[index(output.node)]) minus.push_back(output.node);
    }
    return minus;
  }

  void flip(NodeId id) { turned_[index(id)] = !turned_[index(id)]; }

  int broken_around(NodeId id) const {
    const auto is = [&](NodeId user) { return is_broken(user); };
    return (is_broken(id) ? 1 : 0) +
           static_cast<int>(std::count_if(users_[index(id)].begin(), users_[index(id)].end(), is));
  }

  // Turns the operation or one of its operands: the one that breaks least, and now and then any.
  void repair(NodeId id) {
    std::vector<NodeId> candidates{id};
    for (const NodeId operand : operands(node(id))) {
      if (node(operand).op != Op::load) candidates.push_back(operand);
    }
    constexpr std::size_t one_in = 5;
    if (random(one_in) == 0) {
      flip(candidates[random(candidates.size())]);
      return;
    }
    const auto damage = [&](NodeId candidate) {
      const int before = broken_around(candidate);
      flip(candidate);
      const int after = broken_around(candidate);
      flip(candidate);
      return after - before;
    };
    flip(*std::min_element(candidates.begin(), candidates.end(),
                           [&](NodeId a, NodeId b) { return damage(a) < damage(b); }));
  }

  const Draft& draft_;
  std::vector<int> uses_;
  std::vector<bool> turned_;
  std::vector<std::vector<NodeId>> users_;
  std::uint64_t state_ = 1;
};

}  // namespace

std::vector<bool> negated_values(const Draft& draft) { return Search(draft).run(); }

}  // namespace xfm::gen::real
