#include "tests/bits/composition.h"

#include <stdexcept>

#include "tests/bits/blocks.h"

namespace xfm::test {
namespace {

std::size_t index(int i) { return static_cast<std::size_t>(i); }

Points<float> block(const Points<float>& x) {
  switch (x.size()) {
    case 2:
      return length2(x);
    case 3:
      return length3(x);
    case 4:
      return length4(x);
    case 5:
      return length5(x, Centre::last);
    default:
      throw std::logic_error("no block of length " + std::to_string(x.size()));
  }
}

/// The multiple of `of` that is 1 modulo n.
int unit(int of, int n) {
  int multiple = of;
  while (multiple % n != 1 % n) multiple += of;
  return multiple;
}

/// x[(b*m + a*c) mod N] to X[(b*B*k1 + a*A*k2) mod N], b*B = 1 modulo a and a*A = 1 modulo b; or x[c + b*m]
/// to X[k1 + a*k2] with twiddles.
Points<float> two_stages(const Plan& plan, const Points<float>& x) {
  const Plan &first = plan.stages[0], &second = plan.stages[1];
  const int a = first.length, b = second.length, n = a * b;
  const bool good_thomas = plan.rule == Plan::Rule::good_thomas;
  std::vector<Points<float>> columns;
  for (int c = 0; c < b; ++c) {
    Points<float> column;
    for (int m = 0; m < a; ++m) column.push_back(x[index(good_thomas ? (b * m + a * c) % n : c + b * m)]);
    columns.push_back(compose(first, column));
  }
  Points<float> out(x.size());
  for (int k1 = 0; k1 < a; ++k1) {
    Points<float> row;
    for (int c = 0; c < b; ++c) {
      const Number<float> y = columns[index(c)][index(k1)];
      const long turns = static_cast<long>(c) * k1;
      const Number<float> w{cosine<float>(turns, n), -sine<float>(turns, n)};
      row.push_back(good_thomas ? y : w * y);
    }
    row = compose(second, row);
    for (int k2 = 0; k2 < b; ++k2) {
      const int k = good_thomas ? (unit(b, a) * k1 + unit(a, b) * k2) % n : k1 + a * k2;
      out[index(k)] = row[index(k2)];
    }
  }
  return out;
}

}  // namespace

Points<float> compose(const Plan& plan, const Points<float>& x) {
  return plan.rule == Plan::Rule::block ? block(x) : two_stages(plan, x);
}

}  // namespace xfm::test
