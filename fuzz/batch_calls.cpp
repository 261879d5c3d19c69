#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "fuzz/calls.h"
#include "fuzz/expected.h"
#include "fuzz/report.h"
#include "tests/support/guarded.h"
#include "tools/many_catalogue.h"
#include "xfm_many.h"

namespace xfm::fuzz {
namespace {

using catalogue::Batch;
using catalogue::Kernel;
using catalogue::Places;
using test::Array;
using test::Guarded;

constexpr std::int64_t most_elements = std::int64_t{1} << 14;  ///< of a batch
constexpr std::int64_t widest_span = std::int64_t{1} << 16;    ///< of an array, in elements

struct Call {
  const Batch* batch;
  std::int32_t length;
  const Kernel* kernel;  ///< null if the length is not served
  std::int64_t count;
  std::int32_t flag;
  bool src_null, dst_null, with_buffer;
  Places from{}, to{};

  int parts() const { return catalogue::scalars_of_element(*kernel); }
  int read() const { return kernel->read / parts(); }
  int written() const { return kernel->written / parts(); }
  int element_bytes() const { return parts() * test::scalar_size(kernel->precision); }
  xfmStatus status() const {
    return expected_status(kernel != nullptr && count >= 0, src_null || dst_null, flag);
  }

  xfmStatus run(const void* src, void* dst, void* buffer) const {
    const void* const in = src_null ? nullptr : src;
    void* const out = dst_null ? nullptr : dst;
    if (!with_buffer) return batch->call(in, from, out, to, length, count, flag);
    if (std::strcmp(batch->type, "32f") == 0)
      return xfmManyWHT_32f(static_cast<const float*>(in), from.stride, from.distance,
                            static_cast<float*>(out), to.stride, to.distance, length, count, flag, buffer);
    return xfmManyWHT_64f(static_cast<const double*>(in), from.stride, from.distance,
                          static_cast<double*>(out), to.stride, to.distance, length, count, flag, buffer);
  }
  std::string text() const {
    const auto show = [](Places p) { return std::to_string(p.stride) + ", " + std::to_string(p.distance); };
    return std::string(batch->name) + "(src, " + show(from) + ", dst, " + show(to) + ", " +
           std::to_string(length) + ", " + std::to_string(count) + ", " + std::to_string(flag) + ")";
  }
};

/// The first and the last element that transforms touch, relative to element 0 of transform 0.
struct Span {
  std::int64_t first, last;
  Span(Places places, std::int64_t size, std::int64_t count) {
    const std::int64_t elements = (size - 1) * places.stride, transforms = (count - 1) * places.distance;
    first = std::min<std::int64_t>(elements, 0) + std::min<std::int64_t>(transforms, 0);
    last = std::max<std::int64_t>(elements, 0) + std::max<std::int64_t>(transforms, 0);
  }
  std::int64_t size() const { return last - first + 1; }
};

bool are_apart(Places places, std::int64_t size, std::int64_t count) {
  std::vector<std::int64_t> indices;
  for (std::int64_t t = 0; t < count; ++t)
    for (std::int64_t k = 0; k < size; ++k) indices.push_back(t * places.distance + k * places.stride);
  std::sort(indices.begin(), indices.end());
  return std::adjacent_find(indices.begin(), indices.end()) == indices.end();
}

Places draw_places(Input& input, std::int64_t size, std::int64_t count) {
  const auto odd = static_cast<std::int64_t>(input.any<std::int8_t>());
  const std::array<std::int64_t, 6> strides{1, count, -1, -count, count + std::abs(odd), odd};
  const std::array<std::int64_t, 6> distances{1, size, -1, -size, size + std::abs(odd), odd};
  Places places{input.one_of(strides), input.one_of(distances)};
  if (count <= 1 && input.one_in(4)) places.distance = input.any<std::int64_t>();  // of no meaning then
  return places;
}

/// Places at which every element has memory; those that are written are apart.
Places sound_places(Input& input, std::int64_t size, std::int64_t count, bool apart) {
  const Places places = draw_places(input, size, count);
  if (count > 1 && Span(places, size, count).size() > widest_span) return {1, size};
  return apart && !are_apart(places, size, count) ? Places{1, size} : places;
}

Call decode(Input& input) {
  const auto batches = catalogue::batches();
  Call call{};
  call.batch = &batches[input.between<std::size_t>(0, batches.size() - 1)];
  call.length = input.length(call.batch->lowest, call.batch->highest);
  call.kernel = find_kernel(call.batch->family, call.batch->type, call.length);
  call.count = input.one_in(16) ? input.any<std::int64_t>() : input.between<std::int64_t>(0, 40);
  call.flag = input.flag();
  call.src_null = input.one_in(32);
  call.dst_null = input.one_in(32);
  call.with_buffer = std::strcmp(call.batch->family, "WHT") == 0 && input.one_in(2);
  if (call.status() == xfmStsOk) {
    const std::int64_t size = std::max(call.read(), call.written());
    call.count = std::min(
        call.count, call.count > 64 ? call.count % 64 : std::max<std::int64_t>(most_elements / size, 1));
  }
  return call;
}

Guarded& buffer_memory() {
  static Guarded memory(std::size_t{1} << 17);
  return memory;
}

void* work_buffer(const Call& call) {
  const bool used = call.status() == xfmStsOk && call.count > 0 && call.kernel->buffer_bytes > 0;
  return used ? buffer_memory().end() - call.kernel->buffer_bytes : buffer_memory().end();
}

/// Refused, or without transforms: neither array is touched.
void touch_nothing(Input& input, Call call) {
  call.from = {input.any<std::int64_t>(), input.any<std::int64_t>()};
  call.to = {input.any<std::int64_t>(), input.any<std::int64_t>()};
  std::byte* const nowhere = buffer_memory().end();
  require(call.run(nowhere, nowhere, work_buffer(call)) == call.status(), call.text() + ": status");
}

/// Memory of one side: element 0 of transform 0 lies where the span, flush with one of the guards, has it.
class Side {
 public:
  Side(Input& input, const Call& call, Places places, std::int64_t size)
      : places_(places),
        bytes_(call.element_bytes()),
        span_(call.count > 1 ? places : Places{places.stride, 0}, size, call.count),
        memory_(static_cast<std::size_t>(span_.size() * bytes_ + slack)) {
    const std::int64_t scalar = test::scalar_size(call.kernel->precision);
    const std::int64_t offset = scalar * input.between<std::int64_t>(0, slack / scalar);
    std::byte* const low =
        input.one_in(2) ? memory_.begin() + offset : memory_.end() - span_.size() * bytes_ - offset;
    origin_ = low - span_.first * bytes_;
    std::fill(memory_.begin(), memory_.end(), std::byte{untouched});
  }

  std::byte* origin() const { return origin_; }
  std::byte* at(std::int64_t transform, std::int64_t element) const {
    const std::int64_t base = transform == 0 ? 0 : transform * places_.distance;
    return origin_ + (base + element * places_.stride) * bytes_;
  }
  Guarded& memory() { return memory_; }
  std::vector<std::byte> image() const { return {memory_.begin(), memory_.end()}; }

  /// Elements of a transform, one after another.
  void gather(std::int64_t transform, Array& to, int size) const {
    for (int k = 0; k < size; ++k)
      std::memcpy(static_cast<std::byte*>(to.data()) + k * bytes_, at(transform, k),
                  static_cast<std::size_t>(bytes_));
  }

 private:
  static constexpr std::int64_t slack = 64;
  Places places_;
  std::int64_t bytes_;
  Span span_;
  Guarded memory_;
  std::byte* origin_;
};

void fill(Input& input, const Call& call, Side& src) {
  const Array values = draw(input, call.kernel->precision, call.kernel->read);
  for (std::int64_t t = 0; t < call.count; ++t) {  // the same numbers in another order
    for (int k = 0; k < call.read(); ++k) {
      const auto from = static_cast<int>((k + 7 * t) % call.read()) * call.parts();
      std::memcpy(src.at(t, k), const_cast<Array&>(values).at(from),
                  static_cast<std::size_t>(call.element_bytes()));
    }
  }
}

/// What the transforms give one by one, before the call changes src.
std::vector<Array> expected_outputs(const Call& call, const Side& src) {
  std::vector<Array> results;
  for (std::int64_t t = 0; t < call.count; ++t) {
    Array in(call.kernel->precision, call.kernel->read);
    src.gather(t, in, call.read());
    results.push_back(expected_output(*call.kernel, in, call.flag));
  }
  return results;
}

void require_outputs(const Call& call, Side& dst, std::vector<std::byte> image,
                     const std::vector<Array>& expected) {
  for (std::int64_t t = 0; t < call.count; ++t) {
    Array got(call.kernel->precision, call.kernel->written);
    dst.gather(t, got, call.written());
    require_output(got.data(), expected[static_cast<std::size_t>(t)],
                   call.text() + ", transform " + std::to_string(t));
    for (int k = 0; k < call.written(); ++k)
      std::copy_n(dst.at(t, k), call.element_bytes(), image.begin() + (dst.at(t, k) - dst.memory().begin()));
  }
  require(image == dst.image(), call.text() + ": wrote something else");
}

void run_apart(Input& input, Call call) {
  call.from = sound_places(input, call.read(), call.count, false);
  call.to = sound_places(input, call.written(), call.count, true);
  Side src(input, call, call.from, call.read()), dst(input, call, call.to, call.written());
  fill(input, call, src);
  const auto expected = expected_outputs(call, src);
  src.memory().forbid_writing();
  const auto image = dst.image();
  require(call.run(src.origin(), dst.origin(), work_buffer(call)) == xfmStsOk, call.text() + ": status");
  require_outputs(call, dst, image, expected);
}

void run_in_place(Input& input, Call call) {
  const int size = std::max(call.read(), call.written());
  call.from = call.to = sound_places(input, size, call.count, true);
  Side both(input, call, call.from, size);
  fill(input, call, both);
  const auto expected = expected_outputs(call, both);
  const auto image = both.image();
  require(call.run(both.origin(), both.origin(), work_buffer(call)) == xfmStsOk, call.text() + ": status");
  require_outputs(call, both, image, expected);
}

}  // namespace

void call_batch(Input& input) {
  const Call call = decode(input);
  const bool nothing = call.status() != xfmStsOk || call.count == 0, in_place = !nothing && input.one_in(4);
  if (nothing)
    touch_nothing(input, call);
  else if (in_place)
    run_in_place(input, call);
  else
    run_apart(input, call);
  const auto number = static_cast<std::uint32_t>(call.batch - catalogue::batches().data()) * 64 + 4096;
  note_kind(number + static_cast<std::uint32_t>(call.length & 63), (nothing    ? 1U
                                                                    : in_place ? 2U
                                                                               : 0U) *
                                                                           4 +
                                                                       (call.count > 8 ? 1U : 0U));
}

}  // namespace xfm::fuzz
