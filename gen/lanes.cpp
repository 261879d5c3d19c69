#include "gen/lanes.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace xfm::gen {

Element source_element(int n) { return {.re_at = 2 * n, .im_at = 2 * n + 1, .split = {}}; }

Element exchanged(Element e) {
  e.weight.im = -e.weight.im;
  std::swap(e.re_at, e.im_at);
  e.split = exchanged(e.split);
  return e;
}

Element weighted(Element e, const ComplexConstant& w) {
  if (!e.weight.is_one()) throw std::logic_error("an element waits for two multiplications");
  e.weight = w;
  return e;
}

namespace {

bool is_quarter_turn(const ComplexConstant& w) {
  return (w.re.is_zero() && magnitude(w.im).is_one()) || (w.im.is_zero() && magnitude(w.re).is_one());
}

bool weighed_alike(std::span<const Element> elements) {
  const ComplexConstant& first = elements.front().weight;
  return std::all_of(elements.begin(), elements.end(),
                     [&](const Element& e) { return e.weight.re == first.re && e.weight.im == first.im; });
}

}  // namespace

Complex Lanes::gather(std::span<const Element> elements) {
  if (elements.front().in_memory()) return weigh(elements, gather_memory(elements));
  const bool quarter_turns = std::all_of(elements.begin(), elements.end(),
                                         [](const Element& e) { return is_quarter_turn(e.weight); });
  if (quarter_turns && !weighed_alike(elements)) return gather_turned(elements);
  return weigh(elements, {gather_half(elements, &Complex::p), gather_half(elements, &Complex::q)});
}

// Quarter turns that differ by the lane need no product: parts change places, and signs turn.
Complex Lanes::gather_turned(std::span<const Element> elements) {
  std::vector<Element> turned(elements.begin(), elements.end());
  for (Element& e : turned) e.split = e.weight * e.split;
  return {gather_half(turned, &Complex::p), gather_half(turned, &Complex::q)};
}

// Lane constants where the lanes differ, trivial ones included, since the lanes are multiplied together.
Complex Lanes::weigh(std::span<const Element> elements, const Complex& z) {
  const ComplexConstant& first = elements.front().weight;
  if (weighed_alike(elements)) return first * z;
  std::vector<Constant> re(static_cast<std::size_t>(width()), first.re);
  std::vector<Constant> im(static_cast<std::size_t>(width()), first.im);
  for (std::size_t l = 0; l < elements.size(); ++l) {
    re[l] = elements[l].weight.re;
    im[l] = elements[l].weight.im;
  }
  const bool real = std::all_of(im.begin(), im.end(), [](const Constant& c) { return c.is_zero(); });
  if (real) return {network_.mul(re, z.p), network_.mul(re, z.q)};
  return {network_.mul(re, z.p) - network_.mul(im, z.q), network_.mul(im, z.p) + network_.mul(re, z.q)};
}

// Two loads of two complex numbers and two shuffles make a split value of four.
Complex Lanes::gather_memory(std::span<const Element> elements) {
  if (width() == 1) return {network_.load(elements[0].re_at), network_.load(elements[0].im_at)};
  const auto address = [&](std::size_t l) { return std::min(elements[l].re_at, elements[l].im_at); };
  const auto pair = [&](std::size_t l) {
    const int a = address(l);
    if (l + 1 >= elements.size()) return network_.load({a, a + 1, -1, -1});
    const int b = address(l + 1);
    return network_.load({a, a + 1, b, b + 1});
  };
  const auto part = [&](int Element::*at, Value low, Value high) {
    std::array<int, max_lanes> picks{};
    for (std::size_t l = 0; l < picks.size(); ++l) {
      const std::size_t of = std::min(l, elements.size() - 1);
      picks[l] = 2 * static_cast<int>(of % 2) + (elements[of].*at - address(of)) + (l < 2 ? 0 : 4);
    }
    if (picks[0] == 0 && elements.size() == 1) return low;
    return Value{&network_, shuffle(low.node, high.node, picks), false};
  };
  const Value low = pair(0);
  const Value high = elements.size() > 2 ? pair(2) : low;
  return {part(&Element::re_at, low, high), part(&Element::im_at, low, high)};
}

Value Lanes::gather_half(std::span<const Element> elements, Value Complex::*half) {
  Places wanted;
  std::array<int, max_lanes> turned{};
  for (std::size_t l = 0; l < elements.size(); ++l) {
    const Value v = elements[l].split.*half;
    if (v.absent()) throw std::logic_error("a lane without a value");
    wanted[l] = content(v.node, elements[l].lane);
    turned[l] = v.negative ? 1 : 0;
  }
  const Value gathered{&network_, bring(wanted), false};
  const auto negative = std::count(turned.begin(), turned.end(), 1);
  if (negative == 0) return gathered;
  if (negative == static_cast<long>(elements.size())) return -gathered;
  return network_.flip(gathered, turned);
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

void Lanes::store(std::span<const Element> elements) {
  if (width() == 1) {
    for (int k = 0; k < static_cast<int>(elements.size()); ++k) {
      const Element& e = elements[static_cast<std::size_t>(k)];
      network_.store(network_.factor(e.split.p), {2 * k, -1, -1, -1});
      network_.store(network_.factor(e.split.q), {2 * k + 1, -1, -1, -1});
    }
    return;
  }
  // All outputs that share a split value leave together: interleave its low and its high half.
  std::map<std::pair<NodeId, NodeId>, std::array<int, max_lanes>> groups;
  for (std::size_t k = 0; k < elements.size(); ++k) {
    const Element& e = elements[k];
    if (e.split.p.negative || e.split.q.negative) throw std::logic_error("an output would need a negation");
    const auto [group, fresh] = groups.try_emplace({e.split.p.node, e.split.q.node});
    if (fresh) group->second.fill(-1);
    group->second[static_cast<std::size_t>(e.lane)] = static_cast<int>(k);
  }
  for (const auto& [nodes, outputs] : groups) {
    for (int half = 0; half < 2; ++half) {
      const int a = outputs[static_cast<std::size_t>(2 * half)],
                b = outputs[static_cast<std::size_t>(2 * half + 1)];
      if (a < 0 && b < 0) continue;
      const int first = 2 * half;
      const NodeId interleaved = shuffle(nodes.first, nodes.second, {first, 4 + first, first + 1, 5 + first});
      std::array<int, max_lanes> to{-1, -1, -1, -1};
      if (a >= 0) to[0] = 2 * a, to[1] = 2 * a + 1;
      if (b >= 0) to[2] = 2 * b, to[3] = 2 * b + 1;
      network_.store(network_.factor({&network_, interleaved, false}), to);
    }
  }
}

}  // namespace xfm::gen
