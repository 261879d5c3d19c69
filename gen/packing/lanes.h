// Packing: equal sub-transforms side by side in the lanes of registers.
//
// A packed recipe handles complex numbers as elements, which record where a number is. Before a block runs,
// gather() brings the elements of several instances into lanes; afterwards scatter() makes each lane an
// element again. Transpositions arise from gathering alone. With a width of one the same recipe gives the
// plain scalar network.
#pragma once

#include <span>

#include "gen/network/complex.h"
#include "gen/packing/permuter.h"
#include "gen/packing/units.h"

namespace xfm::gen {

/// How instances fill registers. The arithmetic is the same in both forms.
enum class Form {
  planar,  ///< one lane per instance: a register of real parts and one of imaginary parts; a product by i is
           ///< free
  interleaved,  ///< two lanes per instance, as in memory; a product by i is a permutation and a sign flip
};

/// A part of a complex number: a lane of a node.
struct Part {
  Value value{};
  int lane = 0;
};

/// How a weight's products round where that depends on the elements that are weighed together: lanes with
/// unlike weights are all multiplied at once, parts of weights that are zero included, and a sign that all
/// have is the product's. Matters for infinities and the signs of zeros.
struct Manner {
  bool zeros = false;       ///< a part of the weight that is zero makes a product too
  bool difference = false;  ///< the real part is a difference, so that this product is subtracted
  std::array<bool, 2> sign_outside{false, false};  ///< the part is minus the sum of two products
};

/// A complex number on its way through a packed network: still in memory, in registers, or zero by structure.
struct Element {
  int at = -1;  ///< index in the source array, or -1
  Part re{}, im{};
  ComplexConstant weight{{"1", 1}, {"0", 0}};  ///< a factor that the next gathering applies
  Manner manner{};

  bool in_memory() const { return at >= 0; }
  bool absent() const { return !in_memory() && re.value.absent(); }
};
using Elements = Sequence<Element>;

/// Complex number n of the source array.
Element source_element(int n);

/// The element times w, at the next gathering.
Element weighted(Element e, const ComplexConstant& w);

class Lanes {
 public:
  Lanes(Network& network, const Target& target, Precision precision = Precision::binary32)
      : network_(network), permuter_(network, target, precision) {
    if (network.width() == 2 * UnitPermuter::places) units_.emplace(network, target);
  }

  int width() const { return network_.width(); }

  /// How many instances one value holds.
  int instances(Form form) const { return form == Form::planar ? width() : width() / 2; }

  /// Announces what will be gathered, so that permutations serve more than one register.
  void expect(const Sequence<Elements>& all);

  /// Complex numbers 0 .. count-1 of the source array in registers as they lie in memory.
  Elements load(int count);

  /// How their weights are applied when these elements are gathered together in this form.
  Manner manner(const Elements& elements, Form form) const;

  /// The elements side by side, each times its weight. In the interleaved form q is absent, as in a real
  /// sequence: the network's coefficients are real.
  Complex gather(Elements elements, Form form);

  /// The first `count` instances of a value. In the interleaved form p + i*q is formed here.
  Elements scatter(const Complex& z, int count, Form form);

  /// i times the complex numbers of an interleaved register.
  Value times_i(Value z);

  /// Stores elements[k] times the factor as complex number k of the destination.
  void store(const Elements& elements);

  /// The same after they are brought into the order of memory, in registers of units.
  void store_in_order(const Elements& elements);

 private:
  NodeId load(const Elements& elements, int first);
  Complex load_planar(const Elements& elements);
  Complex gather_planar(const Elements& elements);
  Value gather_parts(const Sequence<Part>& parts);
  Value gather_units(const Elements& elements);
  Complex weigh_planar(const Elements& elements, const Complex& z);
  Value weigh_interleaved(const Elements& elements, Value z);
  Value weigh_units(const Elements& elements, Value z);
  Value quarter_turned(const Sequence<Constant>& cosines, const Sequence<Constant>& sines, Value z);
  Value flipped(const PerLane& flips, Value z);
  Value picked(const Sequence<bool>& second, Value a, Value b);
  Value with_parts_exchanged(Value z);
  void store_register(const PerLane& outputs, int first, NodeId re, NodeId im);

  Network& network_;
  Permuter permuter_;
  std::optional<UnitPermuter> units_{};  // of registers of more than four lanes
};

}  // namespace xfm::gen
