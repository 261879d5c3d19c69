// A batch is the single calls, bit for bit, whatever its count and its places; and it writes nothing else.
#include <cstring>

#include "tests/many/roads.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

/// As many as any target has.
constexpr int most_lanes = 8;

class Many : public KernelTest {
 protected:
  static int read() { return kernel().read / parts(); }
  static int written() { return kernel().written / parts(); }
  static Array elements(std::int64_t count) {
    return {kernel().precision, static_cast<int>(count) * parts()};
  }

  static xfmStatus batch(const Array& src, const Road& from, Array& dst, const Road& to, int count,
                         std::int32_t flag) {
    return attempt([&] {
      return catalogue::batch(kernel()).call(place(src, from.origin()), from.places, place(dst, to.origin()),
                                             to.places, kernel().length, count, flag);
    });
  }

  /// What the batch must leave in dst, by single calls on copies.
  static Array expected(const Array& src, const Road& from, const Array& dst, const Road& to, int count,
                        std::int32_t flag) {
    Array result(dst), in = elements(read()), out = elements(written());
    const auto bytes = static_cast<std::size_t>(parts() * step());
    for (int t = 0; t < count; ++t) {
      for (int k = 0; k < read(); ++k) std::memcpy(place(in, k), place(src, from.index(t, k)), bytes);
      EXPECT_EQ(run(kernel(), in.data(), out.data(), flag), xfmStsOk);
      for (int k = 0; k < written(); ++k) std::memcpy(place(result, to.index(t, k)), place(out, k), bytes);
    }
    return result;
  }

  void expect_single_calls(const Road& from, const Road& to, int count, std::int32_t flag, Kind kind) {
    Array src = elements(from.room()), dst = elements(to.room());
    random.fill(src, kind);
    dst.fill(Poison::bytes_aa);
    const Array before(src), result = expected(src, from, dst, to, count, flag);
    ASSERT_EQ(batch(src, from, dst, to, count, flag), xfmStsOk);
    ASSERT_TRUE(same_bits(dst, result))
        << count << " transforms from " << from.name << " to " << to.name << ", flag " << flag;
    ASSERT_TRUE(same_bits(src, before)) << "src was written";
  }

 private:
  static int parts() { return catalogue::scalars_of_element(kernel()); }
  static std::byte* place(const Array& array, std::int64_t element) {
    return const_cast<Array&>(array).at(static_cast<int>(element) * parts());
  }
};

TEST_P(Many, IsSingleCallsForEveryCount) {
  int turn = 0;
  for (int count = 0; count <= 3 * most_lanes; ++count) {
    const auto sources = roads(read(), count), destinations = roads(written(), count);
    for (const std::size_t road : {0U, 1U}) {
      ++turn;
      ASSERT_NO_FATAL_FAILURE(expect_single_calls(sources[road], destinations[road], count, flags[turn % 4],
                                                  kinds[static_cast<std::size_t>(turn) % std::size(kinds)]));
    }
  }
}

TEST_P(Many, IsSingleCallsOnEveryRoad) {
  constexpr int count = 2 * most_lanes + 3;
  int turn = 0;
  for (const Road& from : roads(read(), count)) {
    for (const Road& to : roads(written(), count)) {
      ++turn;
      ASSERT_NO_FATAL_FAILURE(expect_single_calls(from, to, count, flags[turn % 4], Kind::ordinary));
    }
  }
}

// In small transforms several groups of lanes are computed at a time.
TEST_P(Many, IsSingleCallsForManyTransforms) {
  const int count = kernel().points > 64 ? most_lanes + 1 : 40 * most_lanes + 5;
  const auto sources = roads(read(), count), destinations = roads(written(), count);
  for (const std::size_t road : {0U, 1U, 2U})
    ASSERT_NO_FATAL_FAILURE(
        expect_single_calls(sources[road], destinations[road], count, XFM_SCALE_FWD_BY_N, Kind::ordinary));
}

// The array has room for what is read and for what is written.
TEST_P(Many, WorksInPlace) {
  for (const int count : {1, most_lanes - 1, 2 * most_lanes + 3}) {
    for (const Road& road : roads(std::max(read(), written()), count)) {
      Array data = elements(road.room());
      random.fill(data, Kind::ordinary);
      const Array result = expected(data, road, data, road, count, XFM_SCALE_INV_BY_N);
      ASSERT_EQ(batch(data, road, data, road, count, XFM_SCALE_INV_BY_N), xfmStsOk);
      ASSERT_TRUE(same_bits(data, result)) << count << " transforms in place, " << road.name;
    }
  }
}

// No address is computed of what is neither read nor written.
TEST_P(Many, OneTransformNeedsNoDistance) {
  using Limits = std::numeric_limits<std::int64_t>;
  for (const std::int64_t distance : {Limits::min(), std::int64_t{0}, std::int64_t{1}, Limits::max()}) {
    Road from = roads(read(), 1)[1], to = roads(written(), 1)[1];
    from.places.distance = to.places.distance = distance;
    ASSERT_NO_FATAL_FAILURE(expect_single_calls(from, to, 1, XFM_SCALE_NONE, Kind::ordinary)) << distance;
  }
}

XFM_FOR_ALL_KERNELS(Many);

}  // namespace
}  // namespace xfm::test
