// Short odd lengths from the definition, on symmetric sums and differences of the inputs:
//   X[k] = x0 + sum_j cos(2 pi j k/p) (x_j + x_(p-j)) - i sum_j sin(2 pi j k/p) (x_j - x_(p-j)),
// one statement a part.
#include "gen/algorithms/real_transform.h"

namespace xfm::gen::real {
namespace {

// The bins in the order that the transpose of the block sums them: D(7, 1, 3, 2, 0), or 1, 2, ..., 0.
std::vector<std::size_t> order_of(const Tree& plan, std::size_t half) {
  std::vector<std::size_t> order;
  if (!plan.is_number() && plan.args.size() > 1) {
    for (std::size_t a = 1; a < plan.args.size(); ++a)
      order.push_back(static_cast<std::size_t>(plan.args[a].number));
    return order;
  }
  for (std::size_t k = 1; k <= half; ++k) order.push_back(k);
  order.push_back(0);
  return order;
}

}  // namespace

// A transpose walks the network backwards: the bins are made in the reverse of their order there.
Points direct(const Tree& plan, const Values& x) {
  if (x.size() == 1) return {{x[0], {}}};
  if (x.size() == 2) return {{x[0] + x[1], {}}, {x[0] - x[1], {}}};
  const std::size_t p = x.size(), half = (p - 1) / 2;
  Values sums, differences;
  for (std::size_t j = 1; j <= half; ++j) {
    sums.push_back(x[j] + x[p - j]);
    differences.push_back(x[j] - x[p - j]);
  }
  Value total;
  for (const Value& s : sums) total = total + s;
  Points bins(half + 1);
  const std::vector<std::size_t> order = order_of(plan, half);
  for (auto place = order.rbegin(); place != order.rend(); ++place) {
    const std::size_t k = *place;
    if (k == 0) {
      bins[0] = {x[0] + total, {}};
      continue;
    }
    std::vector<Network::Product> re, im;
    for (std::size_t j = 1; j <= half; ++j) {
      const Turn angle = turn(static_cast<long long>(j * k), static_cast<long long>(p));
      re.push_back({cosine(angle), sums[j - 1]});
      im.push_back({-sine(angle), differences[j - 1]});
    }
    re.push_back({{"1", 1}, x[0]});
    bins[k] = {combination(re), combination(im)};
  }
  return bins;
}

}  // namespace xfm::gen::real
