// The network: what a kernel computes, from its loads to its stores, as a graph of rounded operations.
//
// A network has a width: how many lanes a value carries (1: scalar; 2: one complex number; 4: four split
// lanes). An operation acts alike on all lanes; only loads, shuffles, exchanges, flips and lane constants
// tell lanes apart. A value is a node and a sign, so a negation costs nothing until an output needs it. Equal
// operations are one node (hash-consing), and nothing else is ever simplified, reassociated or merged by
// value: what a recipe writes is what rounds.
#pragma once

#include <array>
#include <map>
#include <span>
#include <vector>

#include "gen/math/constant.h"

namespace xfm::gen {

using NodeId = int;
constexpr int max_lanes = 4;

enum class Op {
  load,       ///< lanes from memory
  shuffle,    ///< lanes picked from one or two nodes
  exchange,   ///< the two lanes of a pair change places
  sign_flip,  ///< the signs of some lanes are turned
  add,
  sub,
  mul,          ///< times a constant, the same in all lanes or one a lane
  twice,        ///< times 2, exact: an addition to itself
  combination,  ///< a statement: a linear combination in binary64, rounded once to the kernel's precision
  factor,       ///< times the scale factor
  minus,        ///< 0 - v, so that a zero leaves as +0
};

class Network;

/// A node with a sign, or nothing at all: a value that is zero by structure.
struct Value {
  Network* network = nullptr;
  NodeId node = -1;
  bool negative = false;

  bool absent() const { return node < 0; }
  Value operator-() const { return {network, node, !negative}; }
  bool operator==(const Value&) const = default;
};

/// One term of a statement, coefficient * node; the coefficient 1 stands for a plain operand.
struct Term {
  Constant coefficient;
  NodeId node;
  auto operator<=>(const Term&) const = default;
};

/// What a statement does in binary64 after its terms are summed and before it is rounded.
enum class Finish {
  none,
  scaled,     ///< times the scale factor
  negated,    ///< times the scale factor, and 0 minus that
  unrounded,  ///< nothing, and it is not rounded: statements alone use it
};
inline bool scales(Finish finish) { return finish == Finish::scaled || finish == Finish::negated; }

struct Node {
  Op op;
  std::array<NodeId, 2> in{-1, -1};
  std::array<int, max_lanes> lanes{
      -1, -1, -1, -1};  ///< load: scalar index; shuffle: source lane, from 4 on of in[1]; flip: 1 or 0
  std::vector<Constant> constants{};  ///< mul: one for all lanes or one a lane
  std::vector<Term> terms{};          ///< sum
  Finish finish = Finish::none;       ///< sum
  auto operator<=>(const Node&) const = default;
};

struct Store {
  NodeId node;                                       ///< or -1: zero bits, whatever the data
  std::array<int, max_lanes> lanes{-1, -1, -1, -1};  ///< scalar index in dst a lane, or -1
};

/// How a sum of products rounds.
enum class Rounding {
  each,         ///< every operation by itself, in the kernel's precision
  combination,  ///< the whole sum once, from binary64
};

class Network {
 public:
  explicit Network(int width, Rounding rounding = Rounding::each) : width_(width), rounding_(rounding) {}
  Network(const Network&) = delete;
  Network& operator=(const Network&) = delete;
  Network(Network&&) = delete;

  int width() const { return width_; }
  Rounding rounding() const { return rounding_; }
  const std::vector<Node>& nodes() const { return nodes_; }
  const std::vector<Store>& stores() const { return stores_; }
  const Node& node(NodeId id) const { return nodes_[static_cast<std::size_t>(id)]; }

  Value load(std::array<int, max_lanes> scalars);
  Value load(int scalar) { return load({scalar, -1, -1, -1}); }
  Value shuffle(Value a, Value b, std::array<int, max_lanes> picks);
  Value exchange(Value v);
  Value flip_signs(Value v, std::array<int, max_lanes> turned);
  Value add(Value a, Value b);
  Value sub(Value a, Value b) { return add(a, -b); }
  Value mul(const Constant& c, Value v);
  Value mul(const std::vector<Constant>& lanes, Value v);
  Value twice(Value v);
  Value factor(Value v);
  Value minus(Value v);  ///< -v as an operation, for the outputs that need it

  /// The operation of another network's node, on these operands; a statement has others.
  Value repeat(const Node& node, Value a, Value b);

  /// The sum of the products c*v, left to right: one statement with this finish, or an operation at a time,
  /// as the rounding rule says.
  struct Product {
    Constant c;
    Value v;
  };
  Value sum(std::span<const Product> products, Finish finish = Finish::none);

  void store(Value v, std::array<int, max_lanes> scalars);
  void store(Value v, int scalar) { store(v, {scalar, -1, -1, -1}); }
  void store_zero(int scalar) { stores_.push_back({-1, {scalar, -1, -1, -1}}); }

 private:
  Value make(Node node, bool negative = false);
  Value difference(NodeId a, NodeId b, bool negative);

  int width_;
  Rounding rounding_;
  std::vector<Node> nodes_;
  std::vector<Store> stores_;
  std::map<Node, NodeId> known_;
};

inline Value operator+(Value a, Value b) {
  if (a.absent()) return b;
  return b.absent() ? a : a.network->add(a, b);
}
inline Value operator-(Value a, Value b) { return a + -b; }

}  // namespace xfm::gen
