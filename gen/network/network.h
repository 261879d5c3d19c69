// The network: what a kernel computes, from its loads to its stores, as a graph of rounded operations.
//
// A value has a width: how many lanes it carries (1: scalar; 2: the parts of one complex number; more:
// numbers side by side). Recipes give all values the network's width; pairing (gen/packing) makes wider ones
// of them. Operations treat all lanes alike, except loads, stores, permutations, sign flips and products by
// lane constants. A value is a node and a sign, so a negation costs nothing until an output needs it. Equal
// operations are one node (hash-consing), and nothing else is ever simplified, reassociated or merged by
// value: what a recipe writes is what rounds.
#pragma once

#include <array>
#include <concepts>
#include <map>
#include <span>

#include "gen/math/constant.h"
#include "gen/math/sequence.h"

namespace xfm::gen {

using NodeId = int;

/// A number for each lane.
using PerLane = Sequence<int>;

enum class Op {
  load,       ///< lanes from memory
  permute,    ///< lanes picked from one or two nodes
  sign_flip,  ///< the signs of some lanes change
  add,
  sub,
  mul,          ///< times a constant, the same in all lanes or one for each lane
  twice,        ///< times 2, exact: an addition to itself
  combination,  ///< a linear combination in binary64, rounded once to the kernel's precision
  factor,       ///< times the scale factor
  minus,        ///< 0 - v, so that a zero comes out as +0
  widen,        ///< from the kernel's precision to binary64, exact
  narrow,       ///< from binary64 to the kernel's precision
};

class Network;

/// A lane of a node.
struct Place {
  NodeId node = -1;
  int lane = 0;

  bool idle() const { return node < 0; }
  bool operator==(const Place&) const = default;
};

/// A node with a sign, or nothing at all: a value that is zero by structure.
struct Value {
  Network* network = nullptr;
  NodeId node = -1;
  bool negative = false;

  bool absent() const { return node < 0; }
  Value operator-() const { return {network, node, !negative}; }
  bool operator==(const Value&) const = default;
};

/// One term of a linear combination, coefficient * node; a coefficient of 1 marks a plain operand.
struct Term {
  Constant coefficient;
  NodeId node;
  auto operator<=>(const Term&) const = default;
};

/// What happens to a linear combination in binary64 between its sum and its rounding.
enum class Finish {
  none,
  scaled,     ///< times the scale factor
  negated,    ///< times the scale factor, and 0 minus that
  unrounded,  ///< not scaled and not rounded
};
inline bool scales(Finish finish) { return finish == Finish::scaled || finish == Finish::negated; }

struct Node {
  Op op;
  std::array<NodeId, 2> in{-1, -1};
  PerLane lanes{};  ///< load: scalar index or -1; permute: lane of in[0], or its width + lane of in[1];
                    ///< sign_flip: 0 or 1; sub: 0 for the lanes that add, if there are any
  Sequence<Constant> constants{};  ///< mul: one for all lanes or one for each
  Sequence<Term> terms{};          ///< combination
  Finish finish = Finish::none;    ///< combination
  auto operator<=>(const Node&) const = default;

  /// The constant of a product in a lane.
  const Constant& constant(int lane) const { return constants[constants.size() == 1 ? 0 : lane]; }

  /// Whether the operation is one of these.
  bool is(std::same_as<Op> auto... ops) const { return ((op == ops) || ...); }
  /// Whether a lane of a difference subtracts.
  bool subtracts(int lane) const { return lanes.empty() || lanes[lane] == 1; }

  bool is_sum() const { return is(Op::add, Op::sub); }
};

/// The distinct nodes that a node is computed from.
Sequence<NodeId> operands(const Node& node);

struct Store {
  NodeId node;    ///< or -1: stores +0, whatever the data
  PerLane lanes;  ///< for each lane the scalar index in dst, or -1
};

/// How a sum of products rounds.
enum class Rounding {
  each,         ///< every operation by itself, in the kernel's precision
  combination,  ///< the whole sum once, from binary64
};

class Network {
 public:
  /// A network of values up to this width.
  explicit Network(int width, Rounding rounding = Rounding::each) : width_(width), rounding_(rounding) {}
  Network(const Network&) = delete;
  Network& operator=(const Network&) = delete;
  Network(Network&&) = delete;

  int width() const { return width_; }
  Rounding rounding() const { return rounding_; }
  const Sequence<Node>& nodes() const { return nodes_; }
  const Sequence<Store>& stores() const { return stores_; }
  const Sequence<Value>& outputs() const { return outputs_; }
  const Node& node(NodeId id) const { return nodes_[id]; }

  /// How many lanes a node carries, and whether it is in binary64 whatever the kernel's precision.
  int width(NodeId id) const { return types_[id].width; }
  bool inner(NodeId id) const { return types_[id].inner; }

  /// Where a lane of a permutation comes from.
  Place source(const Node& permutation, int lane) const;

  Value load(PerLane scalars);
  Value load(int scalar) { return load(PerLane{scalar}); }
  Value permute(Value a, Value b, PerLane picks);
  Value flip_signs(Value v, PerLane flipped);
  Value add(Value a, Value b);
  Value sub(Value a, Value b) { return add(a, -b); }
  Value subtract(Value a, Value b, PerLane lanes);  ///< a - b in the marked lanes, a + b in the others
  Value mul(const Constant& c, Value v);
  Value mul(const Sequence<Constant>& lanes, Value v);
  Value twice(Value v);
  Value factor(Value v);
  Value minus(Value v);  ///< -v as an operation, for the outputs that need it
  Value widen(Value v);
  Value narrow(Value v);

  /// Applies the operation of another network's node to these operands; not for linear combinations, which
  /// may have more.
  Value repeat(Node node, Value a, Value b);

  /// The sum of the products c*v, left to right: one linear combination with this finish, or one operation at
  /// a time, by the rounding rule.
  struct Product {
    Constant c;
    Value v;
    bool is_negative() const { return c.is_negative() != v.negative; }
  };
  Value sum(std::span<const Product> products, Finish finish = Finish::none);

  void store(Value v, PerLane scalars);
  void store(Value v, int scalar) { store(v, PerLane{scalar}); }
  void store_zero(int scalar) { stores_.push_back({-1, {scalar}}); }

  /// The next output of a network that is not bound to memory yet.
  void output(Value v) { outputs_.push_back(v); }

 private:
  struct Type {
    int width;
    bool inner;
  };
  Type type_of(const Node& node) const;
  Value make(Node node, bool negative = false);
  Value difference(NodeId a, NodeId b, bool negative);

  int width_;
  Rounding rounding_;
  Sequence<Node> nodes_;
  Sequence<Type> types_;
  Sequence<Store> stores_;
  Sequence<Value> outputs_;
  std::map<Node, NodeId> known_;
};

using Products = Sequence<Network::Product>;

/// For each node the number of live nodes, stores and outputs that use it; 0 for a dead one.
Sequence<int> uses(const Network& network);

/// Live nodes and stores: the instructions of a kernel, except register copies and spills.
int instructions(const Network& network);

/// For each node the lanes that some store depends on.
Sequence<Sequence<bool>> live_lanes(const Network& network);

inline Value operator+(Value a, Value b) { return a.absent() ? b : a.network->add(a, b); }
inline Value operator-(Value a, Value b) { return a + -b; }

}  // namespace xfm::gen
