#include "gen/packing/lanes.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace xfm::gen {
namespace {

bool is_quarter_turn(const ComplexConstant& w) {
  return (w.re.is_zero() && magnitude(w.im).is_one()) || (w.im.is_zero() && magnitude(w.re).is_one());
}

bool weighed_alike(const Elements& elements) {
  const ComplexConstant& first = elements.front().weight;
  return std::ranges::all_of(
      elements, [&](const Element& e) { return e.weight.re == first.re && e.weight.im == first.im; });
}

bool all_real(const Elements& elements) {
  return std::ranges::all_of(elements, [](const Element& e) { return e.weight.im.is_zero(); });
}

// A quarter turn only exchanges parts and changes signs; nothing is computed.
Element turned(const Element& e) {
  const Constant &c = e.weight.re, &s = e.weight.im;
  const auto with_sign = [](Part part, bool negative) {
    return Part{negative ? -part.value : part.value, part.lane};
  };
  Element out;
  out.re = s.is_zero() ? with_sign(e.re, c.is_negative()) : with_sign(e.im, !s.is_negative());
  out.im = s.is_zero() ? with_sign(e.im, c.is_negative()) : with_sign(e.re, s.is_negative());
  return out;
}

}  // namespace

Element source_element(int n) { return {.at = n}; }

Element weighted(Element e, const ComplexConstant& w) {
  if (!e.weight.is_one()) throw std::logic_error("an element cannot wait for two multiplications");
  e.weight = w;
  return e;
}

Manner Lanes::manner(const Elements& elements, Form form) const {
  const auto all = [&](const auto& holds) { return std::all_of(elements.begin(), elements.end(), holds); };
  const ComplexConstant& first = elements.front().weight;
  const bool planar = form == Form::planar, alike = weighed_alike(elements),
             memory = elements.front().in_memory();
  const bool turns = !memory && all([](const Element& e) { return is_quarter_turn(e.weight); });
  const bool one = all_real(elements) || (alike && (planar || is_quarter_turn(first)));
  // Constants of single lanes carry their signs themselves.
  const bool c = planar && alike && first.re.is_negative(), s = planar && alike && first.im.is_negative();
  const bool p = !memory && all([](const Element& e) { return e.re.value.negative; });
  const bool q = !memory && all([](const Element& e) { return e.im.value.negative; });
  return {.zeros = !turns && !one,
          .difference = planar,
          .sign_outside = {planar ? p != c && q == s : p, planar ? p != s && q != c : q}};
}

Complex Lanes::gather(Elements elements, Form form) {
  if (units_) {
    const bool loads = elements.front().in_memory();
    return {
        weigh_units(elements, loads ? Value{&network_, load(elements, 0), false} : gather_units(elements)),
        {}};
  }
  // Quarter turns need no product, even if they differ from lane to lane.
  const bool turns = std::ranges::all_of(
      elements, [](const Element& e) { return !e.in_memory() && is_quarter_turn(e.weight); });
  if (turns && !weighed_alike(elements)) std::ranges::transform(elements, elements.begin(), turned);
  const bool memory = elements.front().in_memory();
  if (form == Form::planar)
    return weigh_planar(elements, memory ? load_planar(elements) : gather_planar(elements));
  if (memory) return {weigh_interleaved(elements, {&network_, load(elements, 0), false}), {}};
  Sequence<Part> parts;
  for (const Element& e : elements) parts.insert(parts.end(), {e.re, e.im});
  return {weigh_interleaved(elements, gather_parts(parts)), {}};
}

Elements Lanes::scatter(const Complex& z, int count, Form form) {
  Elements elements(count);
  const Value joined = form == Form::interleaved && !z.q.absent() ? z.p + times_i(z.q) : z.p;
  for (int l = 0; l < count; ++l) {
    elements[l] = form == Form::planar ? Element{.re = {z.p, l}, .im = {z.q, l}}
                                       : Element{.re = {joined, 2 * l}, .im = {joined, 2 * l + 1}};
  }
  return elements;
}

// Exchanges the parts of every complex number.
Value Lanes::with_parts_exchanged(Value z) {
  PerLane picks(width());
  for (int l = 0; l < width(); ++l) picks[l] = l ^ 1;
  return {&network_, permuter_.permuted(z.node, z.node, picks), z.negative};
}

Value Lanes::times_i(Value z) {
  PerLane real_parts(width());
  for (int l = 0; l < width(); l += 2) real_parts[l] = 1;
  return network_.flip_signs(with_parts_exchanged(z), real_parts);
}

// Where the weights differ, the constants are those of the lanes, trivial ones included: all lanes are
// multiplied at once.
Complex Lanes::weigh_planar(const Elements& elements, const Complex& z) {
  const ComplexConstant& first = elements.front().weight;
  if (weighed_alike(elements)) return first * z;
  Sequence<Constant> re(width(), first.re), im(width(), first.im);
  for (int l = 0; l < elements.size(); ++l) {
    re[l] = elements[l].weight.re;
    im[l] = elements[l].weight.im;
  }
  if (all_real(elements)) return {network_.mul(re, z.p), network_.mul(re, z.q)};
  // One by one, as in operator* of complex numbers.
  const Value cp = network_.mul(re, z.p), sq = network_.mul(im, z.q), sp = network_.mul(im, z.p),
              cq = network_.mul(re, z.q);
  return {cp - sq, sp + cq};
}

// c*(re, im) + s*(-im, re), with the sign in the constants. Idle lanes repeat the last number's constants.
Value Lanes::weigh_interleaved(const Elements& elements, Value z) {
  const ComplexConstant& first = elements.front().weight;
  if (weighed_alike(elements) && is_quarter_turn(first)) {
    const Value turned = first.im.is_zero() ? z : times_i(z);
    return first.re.is_negative() || first.im.is_negative() ? -turned : turned;
  }
  Sequence<Constant> cosines, sines;
  for (int l = 0; l < width(); ++l) {
    const ComplexConstant& w = elements[std::min(l / 2, elements.size() - 1)].weight;
    cosines.push_back(w.re);
    sines.push_back(l % 2 == 0 ? -w.im : w.im);
  }
  const Value in_phase = network_.mul(cosines, z);
  return all_real(elements) ? in_phase : in_phase + network_.mul(sines, with_parts_exchanged(z));
}

// A register of consecutive elements, each loaded as a complex number, from elements[first] on.
NodeId Lanes::load(const Elements& elements, int first) {
  PerLane scalars(width(), -1);
  for (int l = 0; l < width() && first + l / 2 < elements.size(); ++l)
    scalars[l] = 2 * elements[first + l / 2].at + l % 2;
  return network_.load(scalars).node;
}

// Two loads and two permutations make a planar value.
Complex Lanes::load_planar(const Elements& elements) {
  if (width() == 1) return {network_.load(2 * elements[0].at), network_.load(2 * elements[0].at + 1)};
  const int half = width() / 2;
  const NodeId low = load(elements, 0), high = elements.size() > half ? load(elements, half) : low;
  const auto parts = [&](int part) {
    PerLane picks(width());
    for (int l = 0; l < width(); ++l) {
      const bool idle = l >= elements.size();
      picks[l] = l / half * width() + (idle ? 0 : 2 * (l % half)) + part;
    }
    return Value{&network_, permuter_.permuted(low, high, picks), false};
  };
  const Value re = parts(0), im = parts(1);
  return {re, im};
}

Complex Lanes::gather_planar(const Elements& elements) {
  Sequence<Part> re, im;
  for (const Element& e : elements) {
    re.push_back(e.re);
    im.push_back(e.im);
  }
  const Value p = gather_parts(re), q = gather_parts(im);
  return {p, q};
}

Value Lanes::gather_parts(const Sequence<Part>& parts) {
  if (width() == 1) return parts[0].value;
  Sequence<Place> wanted(width());
  PerLane negative(width());
  for (int l = 0; l < parts.size(); ++l) {
    if (parts[l].value.absent()) throw std::logic_error("a lane without a value");
    wanted[l] = permuter_.content({parts[l].value.node, parts[l].lane});
    negative[l] = parts[l].value.negative ? 1 : 0;
  }
  const Value gathered{&network_, permuter_.bring(wanted), false};
  const auto count = std::count(negative.begin(), negative.end(), 1);
  if (count == 0) return gathered;
  return count == parts.size() ? -gathered : network_.flip_signs(gathered, negative);
}

// Outputs that share registers are stored together: planar ones are interleaved first.
void Lanes::store(const Elements& elements) {
  std::map<std::pair<NodeId, NodeId>, PerLane> groups;
  for (int k = 0; k < elements.size(); ++k) {
    const Part &re = elements[k].re, &im = elements[k].im;
    if (re.value.negative || im.value.negative) throw std::logic_error("an output would need a negation");
    PerLane& outputs = groups.try_emplace({re.value.node, im.value.node}, width(), -1).first->second;
    outputs[re.value.node == im.value.node ? re.lane / 2 : re.lane] = k;
  }
  for (const auto& [nodes, outputs] : groups) {
    for (int first = 0; first < width(); first += std::max(1, width() / 2))
      store_register(outputs, first, nodes.first, nodes.second);
  }
}

// One store: the numbers of half a planar register, or of an interleaved one.
void Lanes::store_register(const PerLane& outputs, int first, NodeId re, NodeId im) {
  const auto scaled = [&](NodeId node) { return network_.factor({&network_, node, false}); };
  if (width() == 1) {
    network_.store(scaled(re), 2 * outputs[0]);
    network_.store(scaled(im), 2 * outputs[0] + 1);
    return;
  }
  PerLane picks(width()), scalars(width(), -1);
  for (int l = 0; l < width(); ++l) {
    const int instance = first + l / 2, output = outputs[instance];
    picks[l] = l % 2 * width() + instance;
    if (output >= 0) scalars[l] = 2 * output + l % 2;
  }
  if (std::ranges::all_of(scalars, [](int s) { return s < 0; })) return;
  network_.store(scaled(re == im ? re : permuter_.permuted(re, im, picks)), scalars);
}

}  // namespace xfm::gen
