#include "gen/algorithms/lines.h"

#include <algorithm>
#include <map>

#include "gen/algorithms/rules.h"
#include "gen/math/number.h"

namespace xfm::gen {

Lines LineTransform::run(const Tree& tree, const Lines& x, Direction direction) {
  if (const auto rule = rule_of(tree).on_lines; rule != nullptr) return (this->*rule)(tree, x, direction);
  return each(x, direction, [&](const Points& z) { return blocks_.run(tree, z); });
}

// Runs the block on all instances, as many at a time as the lanes hold. Instances with zeros in the same
// places are grouped, so that a block never computes with zeros. Blocks are forward. For an inverse one, real
// and imaginary parts are exchanged before and after it, or in the interleaved form the outputs p + i*q
// become p - i*q.
Lines LineTransform::each(const Lines& lines, Direction direction, const Block& block) {
  const Form form = grouping_.form;
  const Lines x = marked(lines);
  Lines out(x.size());
  const auto all = groups(x, grouping_);
  const auto inputs_of = [&](const Sequence<int>& group) {
    Sequence<Elements> inputs(x[group[0]].size());
    for (const int i : group) {
      for (int j = 0; j < x[i].size(); ++j) inputs[j].push_back(x[i][j]);
    }
    return inputs;
  };
  for (const Sequence<int>& group : all) lanes_.expect(inputs_of(group));
  for (const Sequence<int>& group : all) {
    const bool exchange = direction == Direction::inverse && form == Form::planar;
    Points inputs;
    for (const Elements& elements : inputs_of(group)) {
      const Complex z = elements[0].absent() ? Complex{} : lanes_.gather(elements, form);
      inputs.push_back(exchange ? exchanged(z) : z);
    }
    for (const Complex& z : block(inputs)) {
      const Complex directed = exchange ? exchanged(z) : direction == Direction::inverse ? conjugate(z) : z;
      const Elements elements = lanes_.scatter(directed, group.size(), form);
      for (int l = 0; l < group.size(); ++l) out[group[l]].push_back(elements[l]);
    }
  }
  return out;
}

// Instances with the same pattern of zeros, in groups no larger than the lanes hold.
Sequence<Sequence<int>> LineTransform::groups(const Lines& x, const Grouping& grouping) {
  const auto patterns = tabulated(
      x.size(), [&](int i) { return tabulated(x[i].size(), [&](int j) { return x[i][j].absent(); }); });
  Sequence<Sequence<int>> groups;
  std::map<Sequence<bool>, int> open;
  for (int i = 0; i < x.size(); ++i) {
    const auto alike = static_cast<int>(std::count(patterns.begin(), patterns.end(), patterns[i]));
    const int least = (alike + grouping.instances - 1) / grouping.instances;
    const int most = grouping.balanced ? (alike + least - 1) / least : grouping.instances;
    const auto found = open.find(patterns[i]);
    if (found != open.end() && groups[found->second].size() < most) {
      groups[found->second].push_back(i);
    } else {
      open[patterns[i]] = groups.size();
      groups.push_back({i});
    }
  }
  return groups;
}

// The lines with their products by 0 marked.
Lines LineTransform::marked(Lines x) const {
  for (const Sequence<int>& group : groups(x, as_)) {
    for (int j = 0; j < x[group[0]].size(); ++j) {
      const Elements together = tabulated(group.size(), [&](int l) { return x[group[l]][j]; });
      if (together.front().absent()) continue;
      const Manner manner = lanes_.manner(together, as_.form);
      for (const int i : group) x[i][j].manner = manner;
    }
  }
  return x;
}

// Columns and rows as in two_stages.cpp, those of all lines next to each other.
Lines LineTransform::two_stages(const Tree& tree, const Lines& x, Direction direction) {
  const Tree first = tree.args.front(), rest = rest_of(tree);
  const TwoStages map{length_of(first), length_of(rest), tree.rule == "PFA"};
  const int n = map.a * map.b, lines = x.size();
  const auto column = [&](int at) {
    return tabulated(map.a, [&](int m) { return x[at % lines][map.input(m, at / lines)]; });
  };
  const Lines columns = run(first, tabulated(map.b * lines, column), direction);
  const auto row = [&](int at) {
    const int k1 = at / lines;
    return tabulated(map.b, [&](int c) {
      const ComplexConstant twiddle = root_of_unity(turn(map.twiddle(c, k1), n), direction);
      return weighted(columns[c * lines + at % lines][k1], twiddle);
    });
  };
  const Lines rows = run(rest, tabulated(map.a * lines, row), direction);
  Lines out(lines, Line(n));
  for (int at = 0; at < rows.size(); ++at) {
    for (int k2 = 0; k2 < map.b; ++k2) out[at % lines][map.output(at / lines, k2)] = rows[at][k2];
  }
  return out;
}

}  // namespace xfm::gen
