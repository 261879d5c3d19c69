// What passes have in common: they walk through the live nodes of a network, operands first, and rebuild them
// in a new one. A value that its only user takes in may be left there as a dead node, which the next walk
// drops.
#pragma once

#include <memory>

#include "gen/network/complex.h"

namespace xfm::gen {

class Rebuilding {
 public:
  explicit Rebuilding(const Network& old)
      : made_(std::make_unique<Network>(old.width(), old.rounding())),
        old_(old),
        uses_(uses(old)),
        values_(uses_.size()) {}
  virtual ~Rebuilding() = default;

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < size(); ++id) {
      if (live(id)) values_[id] = make(id);
    }
    finish();
    return std::move(made_);
  }

 protected:
  /// What becomes of a live node.
  virtual Value make(NodeId id) = 0;

  virtual void finish() {
    for (const Store& store : old_.stores()) {
      if (store.node < 0) {
        made_->store_zero(store.lanes[0]);
      } else {
        made_->store(value(store.node), store.lanes);
      }
    }
    for (const Value& output : old_.outputs()) made_->output(value(output));
  }

  NodeId size() const { return uses_.size(); }
  bool live(NodeId id) const { return uses_[id] > 0; }
  int uses_of(NodeId id) const { return uses_[id]; }
  const Node& node(NodeId id) const { return old_.node(id); }

  /// What an operand has become; nothing where a node has none.
  Value value(NodeId id) const { return id < 0 ? Value{} : values_[id]; }
  Value value(const Value& v) const { return v.negative ? -value(v.node) : value(v.node); }

  /// The terms of a linear combination; a doubling is one too.
  Products terms(const Node& of) const {
    if (of.op == Op::twice) return {{constant("2", 2), value(of.in[0])}};
    Products all;
    for (const Term& term : of.terms) all.push_back({term.coefficient, value(term.node)});
    return all;
  }

  /// The same operation on what its operands have become; throws for a linear combination.
  Value repeat(const Node& of) { return made_->repeat(of, value(of.in[0]), value(of.in[1])); }

  /// The same, but a linear combination begins with a positive term.
  Value copy(const Node& of) {
    return of.op == Op::combination ? combination(terms(of), of.finish) : repeat(of);
  }

  std::unique_ptr<Network> made_;
  const Network& old_;

 private:
  Sequence<int> uses_;
  Sequence<Value> values_;
};

}  // namespace xfm::gen
