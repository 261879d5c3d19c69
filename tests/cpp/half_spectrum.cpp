// Half spectra: where their bins are, by the tests' own definition of the layouts; views, iteration,
// conversion.
#include "xfm.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>

#include "tests/support/layout.h"

namespace xfm::test {
namespace {

Layout definition_of(layout packing) {
  return packing == layout::ccs ? Layout::ccs : packing == layout::pack ? Layout::pack : Layout::perm;
}

/// A different number for each part of each bin; 0 for a stored zero.
double mark(const Cell& cell) {
  if (cell.part == Part::zero) return 0;
  return cell.part == Part::real ? cell.bin + 1 : -cell.bin - 1;
}

std::complex<double> marked_bin(int length, int bin) {
  const bool real = bin == 0 || 2 * bin == length;
  return {bin + 1.0, real ? 0 : -bin - 1.0};
}

std::vector<double> marked(layout packing, int length) {
  std::vector<double> elements;
  for (const Cell& cell : cells(definition_of(packing), length)) elements.push_back(mark(cell));
  return elements;
}

template <layout Layout>
half_spectrum<Layout, double> spectrum_of(int length) {
  half_spectrum<Layout, double> result(static_cast<std::size_t>(length));
  const auto elements = marked(Layout, length);
  EXPECT_EQ(elements.size(), result.elements().size());
  std::copy(elements.begin(), elements.end(), result.data());
  return result;
}

template <class Packing>
class HalfSpectrum : public testing::Test {
 protected:
  static constexpr layout tested = Packing::value;
};
using Packings =
    testing::Types<std::integral_constant<layout, layout::ccs>, std::integral_constant<layout, layout::pack>,
                   std::integral_constant<layout, layout::perm>>;
TYPED_TEST_SUITE(HalfSpectrum, Packings);

TYPED_TEST(HalfSpectrum, BinsAreWhereTheLayoutHasThem) {
  for (int n = 2; n <= 64; ++n) {
    const auto spectrum = spectrum_of<TestFixture::tested>(n);
    ASSERT_EQ(spectrum.size(), static_cast<std::size_t>(n / 2 + 1));
    for (int k = 0; k <= n / 2; ++k)
      ASSERT_EQ(spectrum.bin(static_cast<std::size_t>(k)), marked_bin(n, k)) << n;
    for (int k = n / 2 + 1; k < n; ++k)
      ASSERT_EQ(spectrum[static_cast<std::size_t>(k)], std::conj(marked_bin(n, n - k))) << n;
  }
}

// Imaginary parts of real bins go nowhere.
TYPED_TEST(HalfSpectrum, SetBinWritesWhatTheLayoutHas) {
  for (int n = 2; n <= 64; ++n) {
    half_spectrum<TestFixture::tested, double> spectrum(static_cast<std::size_t>(n));
    std::fill_n(spectrum.data(), spectrum.elements().size(), 99);
    for (int k = 0; k <= n / 2; ++k) spectrum.set_bin(static_cast<std::size_t>(k), {k + 1.0, -k - 1.0});
    const auto expected = marked(TestFixture::tested, n);
    ASSERT_TRUE(std::equal(expected.begin(), expected.end(), spectrum.data())) << n;
  }
}

TYPED_TEST(HalfSpectrum, IteratesOverTheBins) {
  const auto spectrum = spectrum_of<TestFixture::tested>(9);
  int k = 0;
  for (const std::complex<double> bin : spectrum) EXPECT_EQ(bin, marked_bin(9, k++));
  EXPECT_EQ(k, 5);
  EXPECT_EQ(std::accumulate(spectrum.begin(), spectrum.end(), std::complex<double>()).real(), 15);
  EXPECT_EQ(std::ranges::max(spectrum, {}, [](auto bin) { return bin.real(); }), marked_bin(9, 4));
  EXPECT_EQ(*(spectrum.end() - 1), spectrum.begin()[4]);
  EXPECT_EQ(spectrum.end() - spectrum.begin(), 5);
  static_assert(std::random_access_iterator<decltype(spectrum.begin())>);
}

TYPED_TEST(HalfSpectrum, ConvertsToEveryLayout) {
  for (int n = 2; n <= 64; ++n) {
    const auto from = spectrum_of<TestFixture::tested>(n);
    const auto expect = [&](auto to, layout packing) {
      std::fill_n(to.data(), to.elements().size(), 99);
      ASSERT_EQ(convert(from, to), status::ok);
      const auto expected = marked(packing, n);
      ASSERT_TRUE(std::equal(expected.begin(), expected.end(), to.data())) << n;
    };
    const auto length = static_cast<std::size_t>(n);
    expect(ccs<double>(length), layout::ccs);
    expect(pack<double>(length), layout::pack);
    expect(perm<double>(length), layout::perm);
    EXPECT_EQ(convert(from, ccs<double>(length + 1)), status::bad_size);
  }
}

// A length in the type is the same spectrum.
TYPED_TEST(HalfSpectrum, OfFixedLength) {
  constexpr layout packing = TestFixture::tested;
  half_spectrum<packing, double, 12> fixed;
  ASSERT_EQ(convert(spectrum_of<packing>(12), fixed), status::ok);
  const auto expected = marked(packing, 12);
  EXPECT_TRUE(std::ranges::equal(fixed.elements(), expected));
  ccs<double, 12> converted;
  convert(fixed, converted);
  EXPECT_TRUE(std::ranges::equal(converted.elements(), marked(layout::ccs, 12)));
  static_assert(sizeof(fixed) == element_count(packing, 12) * sizeof(double));
  static_assert(std::is_trivial_v<decltype(fixed)>);
}

TYPED_TEST(HalfSpectrum, ViewsShareElements) {
  constexpr layout packing = TestFixture::tested;
  std::array<double, element_count(packing, 10)> memory{};
  const half_spectrum_view<packing, double, 10> view(memory);
  const half_spectrum_view<packing, const double, 10> constant = view;
  const half_spectrum_view<packing, const double> sized = constant;
  view.set_bin(2, {3, 4});
  EXPECT_EQ(sized.bin(2), std::complex(3.0, 4.0));
  EXPECT_EQ(sized.length(), 10U);
  half_spectrum<packing, double> owner(10);
  const half_spectrum_view<packing, double> of_owner = owner;
  of_owner.set_bin(1, {5, 6});
  EXPECT_EQ(owner.bin(1), std::complex(5.0, 6.0));
}

// One element less than the length needs, and lengths whose number of elements would wrap around.
TYPED_TEST(HalfSpectrum, AViewOfTooLittleMemoryHasNoSamples) {
  constexpr layout packing = TestFixture::tested;
  std::vector<float> memory(element_count(packing, 16)), x(16);
  const std::span<float> all(memory);
  EXPECT_EQ((half_spectrum_view<packing, float>(all, 16).length()), 16U);
  for (const std::size_t length : {std::size_t{16}, std::size_t{1} << 63, ~std::size_t{0}}) {
    const half_spectrum_view<packing, float> none(all.first(all.size() - 1), length);
    EXPECT_EQ(none.length(), 0U);
    EXPECT_EQ(none.size(), 0U);
    EXPECT_EQ(none.begin(), none.end());
    EXPECT_EQ(dft_forward(x, none, scale::none), status::bad_size);
    EXPECT_EQ(dft_inverse(none, x, scale::none), status::bad_size);
  }
}

TYPED_TEST(HalfSpectrum, MovedFromHasNoSamples) {
  half_spectrum<TestFixture::tested, float> from(8);
  const auto to = std::move(from);
  EXPECT_EQ(to.length(), 8U);
  EXPECT_EQ(from.length(), 0U);
  EXPECT_EQ(dft_forward(std::vector<float>(8), from, scale::none), status::bad_size);
}

}  // namespace
}  // namespace xfm::test
