// Packing: like sub-transforms side by side in the lanes of registers.
//
// A packed recipe keeps complex numbers as elements: where each one lives, not a value of its own. Before a
// block of the recipe runs, gather() brings the elements of like instances into lanes; afterwards each lane
// is an element again. Gathering is where transpositions arise: a 4 by 4 transposition is eight unpack and
// half-move shuffles, shared by hash-consing. With a width of one the same recipe gives the plain scalar
// network.
#pragma once

#include <span>
#include <vector>

#include "gen/network/complex.h"

namespace xfm::gen {

/// How instances fill registers. Both forms take the same arithmetic and give the same bits.
enum class Form {
  planar,  ///< four instances: a register of real parts, a register of imaginary parts; a turn by i is free
  interleaved,  ///< two instances in one register, as they stand in memory; a turn by i is a shuffle and a
                ///< flip
};

/// A part of a complex number: a lane of a node.
struct Part {
  Value value{};
  int lane = 0;
};

/// A complex number on its way through a packed network: still in memory, in registers, or zero by structure.
struct Element {
  int at = -1;  ///< index in the source array, or -1
  Part re{}, im{};
  ComplexConstant weight{{"1", 1}, {"0", 0}};  ///< a multiplication that waits for the next gathering

  bool in_memory() const { return at >= 0; }
  bool absent() const { return !in_memory() && re.value.absent(); }
};

/// Complex number n of the source array.
Element source_element(int n);

/// The element times w, at the next gathering.
Element weighted(Element e, const ComplexConstant& w);

class Lanes {
 public:
  explicit Lanes(Network& network) : network_(network) {}

  int width() const { return network_.width(); }

  /// How many instances stand side by side.
  std::size_t instances(Form form) const;

  /// Like elements side by side, each times its weight. In the whole form the value is real in the sense of a
  /// lane-real network: its q is absent.
  Complex gather(std::span<const Element> elements, Form form);

  /// The first `count` instances of a value. In the whole form p + i*q is joined here.
  std::vector<Element> scatter(const Complex& z, std::size_t count, Form form);

  /// Stores elements[k] times the factor as complex number k of the destination.
  void store(std::span<const Element> elements);

 private:
  struct Place {
    NodeId node = -1;
    int lane = 0;
    bool operator==(const Place&) const = default;
  };
  using Places = std::array<Place, max_lanes>;
  using Outputs = std::array<int, max_lanes>;

  Complex load_planar(std::span<const Element> elements);
  Value load_interleaved(std::span<const Element> elements);
  Complex gather_planar(std::span<const Element> elements);
  Value gather_parts(const std::vector<Part>& parts);
  Complex weigh_planar(std::span<const Element> elements, const Complex& z);
  Value weigh_interleaved(std::span<const Element> elements, Value z);
  Value times_i(Value whole);
  void store_half(const Outputs& outputs, NodeId re, NodeId im, int half);
  NodeId bring(const Places& wanted);
  NodeId find(const Places& wanted) const;
  NodeId one_shuffle(const Places& wanted);
  Places beside(Place a, Place b);
  NodeId shuffle(NodeId a, NodeId b, std::array<int, max_lanes> picks);
  Place content(NodeId node, int lane) const;

  Network& network_;
  std::vector<NodeId> shuffles_;
};

}  // namespace xfm::gen
