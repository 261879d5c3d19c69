// Packing: like sub-transforms side by side in the lanes of split registers.
//
// A packed recipe keeps complex numbers as elements: where each one lives, not a value of its own. Before a
// block of the recipe runs, gather() brings the elements of up to `width` like instances into the lanes of
// one split value (a register of real parts, a register of imaginary parts); afterwards each lane is an
// element again. Gathering is where transpositions arise: a 4 by 4 transposition is eight unpack and
// half-move shuffles, shared by hash-consing. With a width of one the same recipe gives the plain scalar
// network.
#pragma once

#include <span>
#include <vector>

#include "gen/complex.h"

namespace xfm::gen {

/// A complex number on its way through a packed network: still in memory, or in one lane of a split value.
struct Element {
  int re_at = -1, im_at = -1;  ///< scalar indices of the parts in memory, or -1
  Complex split{};             ///< the registers that hold the parts
  int lane = 0;
  ComplexConstant weight{{"1", 1}, {"0", 0}};  ///< a multiplication that waits for the next gathering

  bool in_memory() const { return re_at >= 0; }
};

/// Complex number n of the source array.
Element source_element(int n);

/// Real and imaginary part change places. Costs nothing: the exchange of w*z is conj(w) times the exchange of
/// z.
Element exchanged(Element e);

/// The element times w, at the next gathering.
Element weighted(Element e, const ComplexConstant& w);

class Lanes {
 public:
  explicit Lanes(Network& network) : network_(network) {}

  int width() const { return network_.width(); }

  /// Elements, at most width() of them, in the lanes of one split value, each times its weight.
  Complex gather(std::span<const Element> elements);

  /// Stores elements[k] times the factor as complex number k of the destination.
  void store(std::span<const Element> elements);

 private:
  struct Place {
    NodeId node = -1;
    int lane = 0;
    bool operator==(const Place&) const = default;
  };
  using Places = std::array<Place, max_lanes>;

  Complex gather_memory(std::span<const Element> elements);
  Value gather_half(std::span<const Element> elements, Value Complex::*half);
  Complex gather_turned(std::span<const Element> elements);
  Complex weigh(std::span<const Element> elements, const Complex& z);
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
