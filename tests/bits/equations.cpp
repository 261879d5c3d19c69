#include "tests/bits/equations.h"

#include "tests/bits/blocks.h"
#include "tests/bits/composition.h"
#include "tests/bits/joined.h"

namespace xfm::test {

std::multimap<int, Transform<float>> equations_32fc() {
  std::multimap<int, Transform<float>> all = {
      {2, length2<float>}, {3, mixed3}, {4, length4<float>}, {5, mixed5}, {8, radix4by2}};
  const Plan compositions[] = {
      pfa(2, 3),        ct(4, 2),         ct(3, 3),          pfa(5, 2),        pfa(4, 3),
      pfa(5, 3),        ct(4, 4),         ct(pfa(3, 2), 3),  pfa(4, 5),        ct(4, pfa(3, 2)),
      ct(5, 5),         ct(ct(3, 3), 3),  pfa(5, pfa(2, 3)), ct(4, ct(4, 2)),  ct(pfa(5, 2), 4),
      ct(pfa(5, 3), 3), ct(4, pfa(3, 4)), ct(pfa(5, 2), 5),  ct(4, pfa(5, 3)), ct(ct(4, 2), ct(4, 2)),
  };
  for (const Plan& plan : compositions)
    all.emplace(plan.length, [plan](const Points<float>& x) { return compose(plan, x); });
  return all;
}

std::multimap<int, Transform<double>> equations_64fc() {
  return {{2, length2<double>}, {3, length3<double>},
          {4, length4<double>}, {5, [](const Points<double>& x) { return length5(x, Centre::first); }},
          {7, symmetric7},      {8, split8},
          {10, joined10},       {12, joined12}};
}

}  // namespace xfm::test
