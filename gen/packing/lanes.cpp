#include "gen/packing/lanes.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace xfm::gen {
namespace {

bool is_quarter_turn(const ComplexConstant& w) {
  return (w.re.is_zero() && magnitude(w.im).is_one()) || (w.im.is_zero() && magnitude(w.re).is_one());
}

bool weighed_alike(std::span<const Element> elements) {
  const ComplexConstant& first = elements.front().weight;
  return std::all_of(elements.begin(), elements.end(),
                     [&](const Element& e) { return e.weight.re == first.re && e.weight.im == first.im; });
}

bool all_real(std::span<const Element> elements) {
  return std::all_of(elements.begin(), elements.end(),
                     [](const Element& e) { return e.weight.im.is_zero(); });
}

// w times the element by its parts alone: a quarter turn moves and turns signs, and costs nothing.
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

std::array<int, max_lanes> scalars(int low, int high) {
  std::array<int, max_lanes> at{-1, -1, -1, -1};
  if (low >= 0) at[0] = 2 * low, at[1] = 2 * low + 1;
  if (high >= 0) at[2] = 2 * high, at[3] = 2 * high + 1;
  return at;
}

}  // namespace

Element source_element(int n) { return {.at = n}; }

Element weighted(Element e, const ComplexConstant& w) {
  if (!e.weight.is_one()) throw std::logic_error("an element waits for two multiplications");
  e.weight = w;
  return e;
}

std::size_t Lanes::instances(Form form) const {
  const auto lanes = static_cast<std::size_t>(width());
  return form == Form::planar ? lanes : lanes / 2;
}

Complex Lanes::gather(std::span<const Element> elements, Form form) {
  std::vector<Element> now(elements.begin(), elements.end());
  // Quarter turns that differ by the lane need no product: parts change places, and signs turn.
  const bool turns = std::all_of(
      now.begin(), now.end(), [](const Element& e) { return !e.in_memory() && is_quarter_turn(e.weight); });
  if (turns && !weighed_alike(now)) std::transform(now.begin(), now.end(), now.begin(), turned);
  const bool memory = now.front().in_memory();
  if (form == Form::planar) return weigh_planar(now, memory ? load_planar(now) : gather_planar(now));
  if (memory) return {weigh_interleaved(now, load_interleaved(now)), {}};
  std::vector<Part> parts;
  for (const Element& e : now) parts.insert(parts.end(), {e.re, e.im});
  return {weigh_interleaved(now, gather_parts(parts)), {}};
}

std::vector<Element> Lanes::scatter(const Complex& z, std::size_t count, Form form) {
  std::vector<Element> elements(count);
  const Value joined = form == Form::interleaved && !z.q.absent() ? z.p + times_i(z.q) : z.p;
  for (std::size_t l = 0; l < count; ++l) {
    const int lane = static_cast<int>(l);
    if (form == Form::planar) {
      elements[l].re = {z.p, lane};
      elements[l].im = {z.q, lane};
    } else {
      elements[l].re = {joined, 2 * lane};
      elements[l].im = {joined, 2 * lane + 1};
    }
  }
  return elements;
}

Value Lanes::times_i(Value whole) {
  const NodeId swapped = shuffle(whole.node, whole.node, {1, 0, 7, 6});
  return network_.flip_signs({&network_, swapped, whole.negative}, {1, 0, 1, 0});
}

// Lane constants where the lanes differ, trivial ones included, since the lanes are multiplied together.
Complex Lanes::weigh_planar(std::span<const Element> elements, const Complex& z) {
  const ComplexConstant& first = elements.front().weight;
  if (weighed_alike(elements)) return first * z;
  std::vector<Constant> re(static_cast<std::size_t>(width()), first.re);
  std::vector<Constant> im(static_cast<std::size_t>(width()), first.im);
  for (std::size_t l = 0; l < elements.size(); ++l) {
    re[l] = elements[l].weight.re;
    im[l] = elements[l].weight.im;
  }
  if (all_real(elements)) return {network_.mul(re, z.p), network_.mul(re, z.q)};
  // One by one, as in operator* of complex numbers.
  const Value cp = network_.mul(re, z.p), sq = network_.mul(im, z.q), sp = network_.mul(im, z.p),
              cq = network_.mul(re, z.q);
  return {cp - sq, sp + cq};
}

// c*(re, im) + s*(-im, re), the sign in the constants.
Value Lanes::weigh_interleaved(std::span<const Element> elements, Value z) {
  const ComplexConstant &a = elements.front().weight, &b = elements.back().weight;
  if (a.is_one() && b.is_one()) return z;
  if (weighed_alike(elements) && is_quarter_turn(a)) {
    const Value turn = a.im.is_zero() ? z : times_i(z);
    return a.re.is_negative() || a.im.is_negative() ? -turn : turn;
  }
  const Value cosines = network_.mul(std::vector<Constant>{a.re, a.re, b.re, b.re}, z);
  if (all_real(elements)) return cosines;
  const Value swapped{&network_, shuffle(z.node, z.node, {1, 0, 7, 6}), z.negative};
  return cosines + network_.mul(std::vector<Constant>{-a.im, a.im, -b.im, b.im}, swapped);
}

// Two loads of two complex numbers and two shuffles make a split value of four.
Complex Lanes::load_planar(std::span<const Element> elements) {
  const int n = elements[0].at;
  if (width() == 1) return {network_.load(2 * n), network_.load(2 * n + 1)};
  const auto pair = [&](std::size_t l) {
    return network_.load(scalars(elements[l].at, l + 1 < elements.size() ? elements[l + 1].at : -1)).node;
  };
  const NodeId low = pair(0);
  const NodeId high = elements.size() > 2 ? pair(2) : low;
  const int last = elements.size() == 3 ? 4 : 6;
  return {{&network_, shuffle(low, high, {0, 2, 4, last}), false},
          {&network_, shuffle(low, high, {1, 3, 5, last + 1}), false}};
}

Value Lanes::load_interleaved(std::span<const Element> elements) {
  return network_.load(scalars(elements[0].at, elements.size() > 1 ? elements[1].at : -1));
}

Complex Lanes::gather_planar(std::span<const Element> elements) {
  std::vector<Part> re, im;
  for (const Element& e : elements) {
    re.push_back(e.re);
    im.push_back(e.im);
  }
  return {gather_parts(re), gather_parts(im)};
}

Value Lanes::gather_parts(const std::vector<Part>& parts) {
  if (width() == 1) return parts[0].value;
  Places wanted;
  std::array<int, max_lanes> negative{};
  for (std::size_t l = 0; l < parts.size(); ++l) {
    if (parts[l].value.absent()) throw std::logic_error("a lane without a value");
    wanted[l] = content(parts[l].value.node, parts[l].lane);
    negative[l] = parts[l].value.negative ? 1 : 0;
  }
  const Value gathered{&network_, bring(wanted), false};
  const auto count = std::count(negative.begin(), negative.end(), 1);
  if (count == 0) return gathered;
  return count == static_cast<long>(parts.size()) ? -gathered : network_.flip_signs(gathered, negative);
}

// Where the content of a lane was computed: through shuffles to the arithmetic node behind them.
Lanes::Place Lanes::content(NodeId node, int lane) const {
  while (network_.node(node).op == Op::shuffle) {
    const int pick = network_.node(node).lanes[static_cast<std::size_t>(lane)];
    node = network_.node(node).in[pick < max_lanes ? 0 : 1];
    lane = pick % max_lanes;
  }
  return {node, lane};
}

NodeId Lanes::shuffle(NodeId a, NodeId b, std::array<int, max_lanes> picks) {
  const NodeId made = network_.shuffle({&network_, a, false}, {&network_, b, false}, picks).node;
  if (std::find(shuffles_.begin(), shuffles_.end(), made) == shuffles_.end()) shuffles_.push_back(made);
  return made;
}

// A node that has the wanted lanes already, or -1.
NodeId Lanes::find(const Places& wanted) const {
  const auto holds = [&](NodeId node) {
    for (int l = 0; l < max_lanes; ++l) {
      const Place& w = wanted[static_cast<std::size_t>(l)];
      if (w.node >= 0 && w != content(node, l)) return false;
    }
    return true;
  };
  if (holds(wanted[0].node)) return wanted[0].node;
  const auto found = std::find_if(shuffles_.begin(), shuffles_.end(), holds);
  return found == shuffles_.end() ? -1 : *found;
}

// The wanted lanes by a single shuffle: two lanes from one node and two from another, or an unpack; else -1.
NodeId Lanes::one_shuffle(const Places& wanted) {
  const auto same = [](const Place& a, const Place& b) {
    return a.node < 0 || b.node < 0 || a.node == b.node;
  };
  const auto either = [](const Place& a, const Place& b) { return a.node >= 0 ? a : b; };
  const auto [w0, w1, w2, w3] = wanted;
  if (same(w0, w1) && same(w2, w3)) {
    const Place low = either(w0, w1), high = w2.node >= 0 || w3.node >= 0 ? either(w2, w3) : low;
    const auto pick = [](const Place& w, int idle) { return w.node >= 0 ? w.lane : idle; };
    return shuffle(low.node, high.node, {pick(w0, 0), pick(w1, 1), 4 + pick(w2, 0), 4 + pick(w3, 1)});
  }
  const auto at = [](const Place& w, int lane) { return w.node < 0 || w.lane == lane; };
  if (same(w0, w2) && same(w1, w3)) {
    const NodeId a = either(w0, w2).node, b = either(w1, w3).node;
    if (at(w0, 0) && at(w1, 0) && at(w2, 1) && at(w3, 1)) return shuffle(a, b, {0, 4, 1, 5});
    if (at(w0, 2) && at(w1, 2) && at(w2, 3) && at(w3, 3)) return shuffle(a, b, {2, 6, 3, 7});
  }
  return -1;
}

// The places of a and b in one node, an unpack if their halves allow it: the form that transpositions share.
Lanes::Places Lanes::beside(Place a, Place b) {
  const auto within = [&](NodeId node) {
    Places places;
    for (int l = max_lanes - 1; l >= 0; --l) {
      if (content(node, l) == a) places[0] = {node, l};
      if (b.node >= 0 && content(node, l) == b) places[1] = {node, l};
    }
    return places;
  };
  const auto complete = [&](const Places& p) { return p[0].node >= 0 && (b.node < 0 || p[1].node >= 0); };
  if (const Places p = within(a.node); complete(p)) return p;
  for (const NodeId node : shuffles_) {
    if (const Places p = within(node); complete(p)) return p;
  }
  if (a.lane < 2 && b.lane < 2) return within(shuffle(a.node, b.node, {0, 4, 1, 5}));
  if (a.lane >= 2 && b.lane >= 2) return within(shuffle(a.node, b.node, {2, 6, 3, 7}));
  return within(shuffle(a.node, b.node, {a.lane, a.lane ^ 1, 4 + b.lane, 4 + (b.lane ^ 1)}));
}

NodeId Lanes::bring(const Places& wanted) {
  if (const NodeId node = find(wanted); node >= 0) return node;
  if (const NodeId node = one_shuffle(wanted); node >= 0) return node;
  Places near;
  for (std::size_t half = 0; half < wanted.size(); half += 2) {
    if (wanted[half].node < 0) continue;
    const Places pair = beside(wanted[half], wanted[half + 1]);
    near[half] = pair[0];
    near[half + 1] = pair[1];
  }
  return one_shuffle(near);
}

// All outputs that share registers leave together: split ones are interleaved, whole ones go as they are.
void Lanes::store(std::span<const Element> elements) {
  std::map<std::pair<NodeId, NodeId>, Outputs> groups;
  for (std::size_t k = 0; k < elements.size(); ++k) {
    const Element& e = elements[k];
    if (e.re.value.negative || e.im.value.negative) throw std::logic_error("an output would need a negation");
    const auto [group, fresh] =
        groups.try_emplace({e.re.value.node, e.im.value.node}, Outputs{-1, -1, -1, -1});
    const bool whole = e.re.value.node == e.im.value.node;
    group->second[static_cast<std::size_t>(whole ? e.re.lane / 2 : e.re.lane)] = static_cast<int>(k);
  }
  for (const auto& [nodes, outputs] : groups) {
    store_half(outputs, nodes.first, nodes.second, 0);
    store_half(outputs, nodes.first, nodes.second, 1);
  }
}

void Lanes::store_half(const Outputs& outputs, NodeId re, NodeId im, int half) {
  const auto first = static_cast<std::size_t>(2 * half);
  if (outputs[first] < 0 && outputs[first + 1] < 0) return;
  if (width() == 1) {
    network_.store(network_.factor({&network_, re, false}), {2 * outputs[0], -1, -1, -1});
    network_.store(network_.factor({&network_, im, false}), {2 * outputs[0] + 1, -1, -1, -1});
    return;
  }
  const int lane = 2 * half;
  const NodeId interleaved = re == im ? re : shuffle(re, im, {lane, 4 + lane, lane + 1, 5 + lane});
  network_.store(network_.factor({&network_, interleaved, false}),
                 scalars(outputs[first], outputs[first + 1]));
}

}  // namespace xfm::gen
