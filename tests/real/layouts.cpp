// The three packed layouts: which element holds what, and that all three hold the same values.
#include "tests/support/layout.h"

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "tests/bits/data.h"
#include "tests/bits/same_values.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

std::string description(Layout layout, int length) {
  std::string text;
  for (const Cell& cell : cells(layout, length)) {
    if (!text.empty()) text += ", ";
    const std::string bin = std::to_string(cell.bin);
    text += cell.part == Part::zero ? "0" : (cell.part == Part::real ? "R" : "I") + bin;
  }
  return text;
}

// Written out by hand, since all other tests rely on cells().
TEST(Layouts, OfTheShortLengths) {
  struct Row {
    int length;
    const char *ccs, *pack, *perm;
  };
  constexpr Row rows[] = {
      {2, "R0, 0, R1, 0", "R0, R1", "R0, R1"},
      {3, "R0, 0, R1, I1", "R0, R1, I1", "R0, R1, I1"},
      {4, "R0, 0, R1, I1, R2, 0", "R0, R1, I1, R2", "R0, R2, R1, I1"},
      {5, "R0, 0, R1, I1, R2, I2", "R0, R1, I1, R2, I2", "R0, R1, I1, R2, I2"},
      {6, "R0, 0, R1, I1, R2, I2, R3, 0", "R0, R1, I1, R2, I2, R3", "R0, R3, R1, I1, R2, I2"},
      {7, "R0, 0, R1, I1, R2, I2, R3, I3", "R0, R1, I1, R2, I2, R3, I3", "R0, R1, I1, R2, I2, R3, I3"},
      {8, "R0, 0, R1, I1, R2, I2, R3, I3, R4, 0", "R0, R1, I1, R2, I2, R3, I3, R4",
       "R0, R4, R1, I1, R2, I2, R3, I3"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(description(Layout::ccs, row.length), row.ccs);
    EXPECT_EQ(description(Layout::pack, row.length), row.pack);
    EXPECT_EQ(description(Layout::perm, row.length), row.perm);
  }
}

// The pictures in the document show the layouts as they are.
TEST(Layouts, AreDocumented) {
  std::ifstream file(XFM_LAYOUTS_DOCUMENT);
  std::ostringstream text;
  text << file.rdbuf();
  for (const int length : {5, 6, 7, 8}) {
    const auto start = text.str().find("N = " + std::to_string(length) + " ");
    ASSERT_NE(start, std::string::npos) << length;
    const std::string picture = text.str().substr(start, text.str().find("\n\n", start) - start);
    for (const auto& [layout, name] :
         {std::pair{Layout::ccs, "CCS "}, {Layout::pack, "Pack"}, {Layout::perm, "Perm"}}) {
      std::string line = std::string(name) + " |";
      for (const Cell& cell : cells(layout, length)) {
        const std::string bin = std::to_string(cell.bin);
        line += cell.part == Part::zero ? " 0  |" : (cell.part == Part::real ? " R" : " I") + bin + " |";
      }
      EXPECT_NE(picture.find(line + "\n"), std::string::npos) << line << " is not in\n" << picture;
    }
  }
}

/// What an element holds, by index rules: each is one line of the definition of a layout.
Cell by_rule(Layout layout, int n, int e) {
  const int half = n / 2, most = (n - 1) / 2;
  const bool even = n % 2 == 0;
  if (e == 0) return {0, Part::real};
  if (layout == Layout::ccs) {
    if (e == 1) return {0, Part::zero};
    if (e <= 2 * most + 1) return {e / 2, e % 2 == 0 ? Part::real : Part::imaginary};
    return {half, e == n ? Part::real : Part::zero};
  }
  if (layout == Layout::pack || !even) {
    if (e <= 2 * most) return {(e + 1) / 2, e % 2 != 0 ? Part::real : Part::imaginary};
    return {half, Part::real};
  }
  if (e == 1) return {half, Part::real};
  return {e / 2, e % 2 == 0 ? Part::real : Part::imaginary};
}

TEST(Layouts, OfAllLengths) {
  for (int length = 2; length <= 64; ++length) {
    for (const Layout layout : layouts) {
      const auto all = cells(layout, length);
      ASSERT_EQ(static_cast<int>(all.size()), layout == Layout::ccs ? 2 * (length / 2) + 2 : length);
      for (std::size_t e = 0; e < all.size(); ++e)
        ASSERT_EQ(all[e], by_rule(layout, length, static_cast<int>(e)))
            << "N = " << length << ", element " << e;
    }
  }
}

TEST(RealFamilies, AreComplete) {
  for (const RealFamily& family : real_families) {
    std::set<std::string> generics;
    for (const Generic& generic : catalogue::generics()) {
      if (std::string(generic.family) != family.name) continue;
      generics.insert(generic.type);
      EXPECT_EQ(generic.lowest, 2) << generic.name;
      EXPECT_EQ(generic.highest, 64) << generic.name;
    }
    EXPECT_EQ(generics, (std::set<std::string>{"32f", "64f"})) << family.name;
    for (const char* type : {"32f", "64f"}) {
      for (int length = 2; length <= 64; ++length) {
        const Kernel* const kernel = find_kernel(family.name, length, type);
        ASSERT_NE(kernel, nullptr) << family.name << " " << length << " " << type;
        const auto spectrum = static_cast<int>(cells(family.layout, length).size());
        EXPECT_EQ(kernel->read, family.forward ? length : spectrum) << kernel->name;
        EXPECT_EQ(kernel->written, family.forward ? spectrum : length) << kernel->name;
      }
    }
  }
}

// Conversions between layouts, element by element.

Array pack_of_ccs(const Array& ccs, int n) {
  Array pack(ccs.precision(), n);
  pack.set(0, ccs[0]);
  for (int e = 1; e < n; ++e) pack.set(e, ccs[e + 1]);
  return pack;
}

Array perm_of_pack(const Array& pack) {
  const int n = pack.count();
  Array perm(pack);
  if (n % 2 != 0) return perm;
  perm.set(1, pack[n - 1]);
  for (int e = 2; e < n; ++e) perm.set(e, pack[e - 1]);
  return perm;
}

/// With arbitrary numbers in place of the imaginary parts that are not free.
Array ccs_of_pack(const Array& pack) {
  const int n = pack.count();
  Array ccs(pack.precision(), 2 * (n / 2) + 2);
  ccs.fill(17.0);
  ccs.set(0, pack[0]);
  for (int e = 1; e < n; ++e) ccs.set(e + 1, pack[e]);
  return ccs;
}

/// For a CCS kernel, the three kernels of its length, direction and precision.
class LayoutsOf : public KernelTest {
 protected:
  static const Kernel& in(Layout layout) {
    const RealFamily* const own = real_family(kernel());
    for (const RealFamily& family : real_families)
      if (family.layout == layout && family.forward == own->forward)
        return *find_kernel(family.name, kernel().length, kernel().type);
    throw std::logic_error("no such family");
  }
  static Array transformed(Layout layout, const Array& src, std::int32_t flag) {
    Array dst(kernel().precision, in(layout).written);
    dst.fill(Poison::quiet_nan);
    EXPECT_EQ(run(in(layout), src.data(), dst.data(), flag), xfmStsOk);
    return dst;
  }
};

class ForwardLayouts : public LayoutsOf {};

TEST_P(ForwardLayouts, HoldTheSameBits) {
  for (const Data& data : all_data()) {
    const Array src = draw(data, random, kernel().precision, kernel().read);
    for (const std::int32_t flag : flags) {
      const Array ccs = transformed(Layout::ccs, src, flag), pack = transformed(Layout::pack, src, flag);
      const Array perm = transformed(Layout::perm, src, flag);
      ASSERT_TRUE(same_values(pack, pack_of_ccs(ccs, kernel().length), Zeros::as_they_are)) << data.name;
      ASSERT_TRUE(same_values(perm, perm_of_pack(pack), Zeros::as_they_are)) << data.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, ForwardLayouts, testing::ValuesIn(kernels_of("DFTFwd_RToCCS")), ByName());

/// The lengths whose blocks of 5 or 7 points add their terms in another order than those of CCS.
const std::map<Layout, std::set<int>> other_orders = {
    {Layout::ccs, {}}, {Layout::pack, {7, 20, 40, 49, 50}}, {Layout::perm, {7, 49}}};

class InverseLayouts : public LayoutsOf {
 protected:
  /// Compares the outputs for one spectrum in the layout and in CCS.
  static testing::AssertionResult agree(Layout layout, const Array& pack, std::int32_t flag) {
    const Array src = layout == Layout::pack ? pack : perm_of_pack(pack);
    return same_values(transformed(layout, src, flag), transformed(Layout::ccs, ccs_of_pack(pack), flag),
                       Zeros::as_they_are);
  }
};

TEST_P(InverseLayouts, GiveTheSameBits) {
  for (const Layout layout : {Layout::pack, Layout::perm}) {
    if (other_orders.at(layout).contains(kernel().length)) continue;
    for (const Data& data : all_data()) {
      const Array pack = draw(data, random, kernel().precision, kernel().length);
      for (const std::int32_t flag : flags)
        ASSERT_TRUE(agree(layout, pack, flag)) << data.name << ", flag " << flag;
    }
  }
}

// The exceptions do differ. That they are right is for the accuracy tests to show.
TEST_P(InverseLayouts, DifferWhereTheOrderDoes) {
  for (const Layout layout : {Layout::pack, Layout::perm}) {
    if (!other_orders.at(layout).contains(kernel().length)) continue;
    bool same = true;
    for (int round = 0; round < 100 && same; ++round)
      same =
          static_cast<bool>(agree(layout, random.array(kernel().precision, kernel().length), XFM_SCALE_NONE));
    EXPECT_FALSE(same);
  }
}

INSTANTIATE_TEST_SUITE_P(All, InverseLayouts, testing::ValuesIn(kernels_of("DFTInv_CCSToR")), ByName());

}  // namespace
}  // namespace xfm::test
