// Lanes where they begin and end: loads, stores, a width of one, and the interleaved form.
#include "gen/packing/lanes.h"

#include <gtest/gtest.h>

#include <complex>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::count;
using test::integers;
using Number = std::complex<double>;

TEST(Loading, FourNumbersAreTwoLoadsAndTwoPermutations) {
  Network network(4);
  Lanes lanes(network, baseline());
  const Elements elements = {source_element(0), source_element(1), source_element(2), source_element(3)};
  const Complex z = lanes.gather(elements, Form::planar);
  EXPECT_EQ(count(network, Op::load), 2);
  EXPECT_EQ(count(network, Op::permute), 2);
  test::store(network, z.p, 0);
  test::store(network, z.q, 4);
  EXPECT_EQ(test::evaluate<float>(network, {0, 1, 2, 3, 4, 5, 6, 7}, 8),
            (Sequence<float>{0, 2, 4, 6, 1, 3, 5, 7}));
}

TEST(Loading, InterleavedNumbersNeedNoPermutation) {
  Network network(4);
  Lanes lanes(network, baseline());
  const Elements elements = {source_element(3), source_element(1)};
  const Complex z = lanes.gather(elements, Form::interleaved);
  EXPECT_TRUE(z.q.absent());
  EXPECT_EQ(count(network, Op::load), 1);
  EXPECT_EQ(count(network, Op::permute), 0);
  test::store(network, z.p, 0);
  EXPECT_EQ(test::evaluate<float>(network, {0, 1, 2, 3, 4, 5, 6, 7}, 4), (Sequence<float>{6, 7, 2, 3}));
}

// From memory through either form and back: numbers keep their order, for any number of instances.
TEST(Storing, LanesLeaveAsTheyCame) {
  for (const int width : {1, 4}) {
    for (const Form form : {Form::planar, Form::interleaved}) {
      if (width == 1 && form == Form::interleaved) continue;
      Network network(width);
      Lanes lanes(network, baseline());
      ASSERT_GE(lanes.instances(form), 1);
      constexpr int length = 7;
      Elements line;
      for (int n = 0; n < length;) {
        Elements group;
        for (; group.size() < lanes.instances(form) && n < length; ++n) group.push_back(source_element(n));
        const auto elements = lanes.scatter(lanes.gather(group, form), group.size(), form);
        line.insert(line.end(), elements.begin(), elements.end());
      }
      lanes.store(line);
      Sequence<float> src(2 * length);
      for (int i = 0; i < src.size(); ++i) src[i] = static_cast<float>(i);
      EXPECT_EQ(test::evaluate<float>(network, src, src.size()), src) << "width " << width;
    }
  }
}

TEST(Storing, PlanarNumbersAreInterleaved) {
  Network network(4);
  Lanes lanes(network, baseline());
  const Complex z{network.load({0, 1, 2, 3}), network.load({4, 5, 6, 7})};
  lanes.store(lanes.scatter(z, 4, Form::planar));
  EXPECT_EQ(count(network, Op::permute), 2);
  EXPECT_EQ(network.stores().size(), 2);
  EXPECT_EQ(test::evaluate<float>(network, {0, 1, 2, 3, 4, 5, 6, 7}, 8),
            (Sequence<float>{0, 4, 1, 5, 2, 6, 3, 7}));
}

TEST(OneLane, IsThePlainNetwork) {
  Network network(1);
  Lanes lanes(network, baseline());
  EXPECT_EQ(lanes.instances(Form::planar), 1);
  const Complex z = lanes.gather({source_element(2)}, Form::planar);
  EXPECT_EQ(z.p, network.load(4));
  EXPECT_EQ(z.q, network.load(5));
  const auto elements = lanes.scatter(z, 1, Form::planar);
  EXPECT_EQ(lanes.gather(elements, Form::planar).p, z.p);
  const Complex turned = lanes.gather({weighted(elements[0], integers(0, -1))}, Form::planar);
  EXPECT_EQ(turned.p, z.q);
  EXPECT_EQ(turned.q, -z.p);
  EXPECT_EQ(network.nodes().size(), 2);
}

TEST(Weights, OnlyOneWaits) {
  const Element once = weighted(source_element(0), integers(2, 3));
  EXPECT_THROW(weighted(once, integers(0, 1)), std::logic_error);
  EXPECT_NO_THROW(weighted(weighted(source_element(0), integers(1, 0)), integers(0, 1)));
}

TEST(InterleavedForm, AJoinIsAPermutationAndASignFlip) {
  Network network(4);
  Lanes lanes(network, baseline());
  const Complex z{network.load({0, 1, 2, 3}), network.load({4, 5, 6, 7})};
  const auto elements = lanes.scatter(z, 2, Form::interleaved);
  EXPECT_EQ(count(network, Op::permute), 1);
  EXPECT_EQ(count(network, Op::sign_flip), 1);
  lanes.store(elements);
  // (1 + 2i) + i (5 + 6i), (3 + 4i) + i (7 + 8i)
  EXPECT_EQ(test::evaluate<float>(network, {1, 2, 3, 4, 5, 6, 7, 8}, 4),
            (Sequence<float>{1 - 6, 2 + 5, 3 - 8, 4 + 7}));
}

TEST(InterleavedForm, Weights) {
  for (const auto& [a, b] : {std::pair{integers(0, -1), integers(0, -1)},
                             {integers(0, 1), integers(0, 1)},
                             {integers(-1, 0), integers(-1, 0)},
                             {integers(2, 0), integers(3, 0)},
                             {integers(1, 0), integers(2, -3)},
                             {integers(0, 1), integers(-1, 0)}}) {
    Network network(4);
    Lanes lanes(network, baseline());
    const auto z =
        lanes.gather({weighted(source_element(0), a), weighted(source_element(1), b)}, Form::interleaved);
    const auto got = test::lanes_of<double>(network, z.p, {2, 3, 5, 7});
    const auto times = [](const ComplexConstant& w, Number v) {
      return Number(static_cast<double>(w.re.value), static_cast<double>(w.im.value)) * v;
    };
    EXPECT_EQ(Number(got[0], got[1]), times(a, {2, 3}));
    EXPECT_EQ(Number(got[2], got[3]), times(b, {5, 7}));
  }
}

}  // namespace
}  // namespace xfm::gen
