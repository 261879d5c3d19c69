// Lanes in registers of four complex numbers, always in the interleaved form: a number's parts stay together.
#include <algorithm>
#include <stdexcept>

#include "gen/packing/lanes.h"

namespace xfm::gen {
namespace {

UnitPermuter::Wanted units_of(const Elements& elements) {
  UnitPermuter::Wanted wanted;
  for (int l = 0; l < elements.size(); ++l)
    wanted[static_cast<std::size_t>(l)] = {elements[l].re.value.node, elements[l].re.lane / 2};
  return wanted;
}

bool any(const Sequence<bool>& marks) { return std::find(marks.begin(), marks.end(), true) != marks.end(); }

}  // namespace

void Lanes::expect(const Sequence<Elements>& all) {
  if (!units_) return;
  Sequence<UnitPermuter::Wanted> registers;
  for (const Elements& elements : all) {
    if (!elements.front().in_memory() && !elements.front().absent()) registers.push_back(units_of(elements));
  }
  units_->expect(registers);
}

Elements Lanes::load(int count) {
  Elements loaded;
  for (int n = 0; n < count; n += width() / 2) {
    Elements side_by_side;
    for (int l = n; l < std::min(count, n + width() / 2); ++l) side_by_side.push_back(source_element(l));
    const Complex z{{&network_, load(side_by_side, 0), false}, {}};
    for (const Element& e : scatter(z, side_by_side.size(), Form::interleaved)) loaded.push_back(e);
  }
  return loaded;
}

// As they were computed: their signs are not yet applied.
Value Lanes::gather_units(const Elements& elements) {
  return {&network_, units_->bring(units_of(elements)), false};
}

// c*(re, im) + s*(-im, re), with the signs in the constants. Idle lanes repeat the last number's constants. A
// number whose weight has a zero part makes one product, or none, unless its manner is to make both.
Value Lanes::weigh_units(const Elements& elements, Value z) {
  Sequence<Constant> cosines, sines;
  Sequence<bool> in_phase_only, quadrature_only;
  PerLane outside;
  bool both = false, turns = true;
  for (int j = 0; j < width() / 2; ++j) {
    const Element& e = elements[std::min(j, elements.size() - 1)];
    const auto& [c, s] = e.weight;
    in_phase_only.push_back(s.is_zero() && !e.manner.zeros);
    quadrature_only.push_back(c.is_zero() && !e.manner.zeros);
    const bool two = !in_phase_only[j] && !quadrature_only[j],
               negative = !e.in_memory() && e.re.value.negative;
    for (const std::size_t part : {0U, 1U}) {
      const bool last = two && e.manner.sign_outside[part], minus = negative != last;
      const bool subtracts = part == 0 && (e.manner.difference || !s.is_zero());
      outside.push_back(last ? 1 : 0);
      cosines.push_back(signed_constant(c, minus));
      sines.push_back(signed_constant(s, minus != subtracts));
    }
    both = both || two;
    turns = turns && (c.is_zero() ? magnitude(s) : magnitude(c)).is_one();
  }
  if (!both && turns) return quarter_turned(cosines, sines, z);
  const Value in_phase = network_.mul(cosines, z);
  if (!both && !any(quadrature_only)) return in_phase;
  Value product;
  if (std::equal(cosines.begin(), cosines.end(), sines.begin(), [](const Constant& c, const Constant& s) {
        return magnitude(c).value == magnitude(s).value;
      })) {
    // Eighth turns: one product serves in both places.
    PerLane flips;
    for (int l = 0; l < width(); ++l)
      flips.push_back(cosines[l ^ 1].is_negative() != sines[l].is_negative() ? 1 : 0);
    product = in_phase + flipped(flips, with_parts_exchanged(in_phase));
  } else {
    const Value quadrature = network_.mul(sines, with_parts_exchanged(z));
    product = in_phase + quadrature;
    if (any(in_phase_only)) product = picked(in_phase_only, product, in_phase);
    if (any(quadrature_only)) product = picked(quadrature_only, product, quadrature);
  }
  return flipped(outside, product);
}

// Quarter turns, of each number its own: only parts change places, and signs.
Value Lanes::quarter_turned(const Sequence<Constant>& cosines, const Sequence<Constant>& sines, Value z) {
  PerLane picks, flips;
  bool exchanges = false;
  for (int l = 0; l < width(); ++l) {
    const bool exchanged = cosines[l].is_zero();
    picks.push_back(exchanged ? l ^ 1 : l);
    flips.push_back((exchanged ? sines : cosines)[l].is_negative() ? 1 : 0);
    exchanges = exchanges || exchanged;
  }
  if (exchanges) z = {&network_, permuter_.permuted(z.node, z.node, picks), z.negative};
  return flipped(flips, z);
}

// A register that would be flipped in its first lane is flipped in the others instead, and negative.
Value Lanes::flipped(const PerLane& flips, Value z) {
  PerLane flipped;
  for (const int flip : flips) flipped.push_back(flip ^ flips[0]);
  const bool changes = std::find(flipped.begin(), flipped.end(), 1) != flipped.end();
  const Value v = changes ? network_.flip_signs(z, flipped) : z;
  return flips[0] == 1 ? -v : v;
}

// Numbers of b where they are marked, and of a elsewhere.
Value Lanes::picked(const Sequence<bool>& second, Value a, Value b) {
  PerLane picks;
  for (int l = 0; l < width(); ++l) picks.push_back(second[l / 2] ? width() + l : l);
  return network_.permute(a, b, picks);
}

void Lanes::store_in_order(const Elements& elements) {
  const int full = width() / 2;
  Sequence<Elements> registers;
  for (int k = 0; k < elements.size(); k += full) {
    const auto first = elements.begin() + k;
    registers.emplace_back(first, first + std::min(full, elements.size() - k));
  }
  expect(registers);
  for (int r = 0; r < registers.size(); ++r) {
    const Elements& numbers = registers[r];
    if (std::any_of(numbers.begin(), numbers.end(), [](const Element& e) { return e.re.value.negative; }))
      throw std::logic_error("an output would need a negation");
    PerLane scalars(width(), -1);
    for (int l = 0; l < 2 * numbers.size(); ++l) scalars[l] = 2 * full * r + l;
    network_.store(network_.factor(gather_units(numbers)), scalars);
  }
}

}  // namespace xfm::gen
