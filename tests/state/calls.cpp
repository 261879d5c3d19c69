#include "tests/state/calls.h"

#include <dlfcn.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/array.h"
#include "tests/support/random.h"
#include "tools/many_catalogue.h"
#include "xfmcore.h"

namespace {

xfm::test::Callees seen = {};

/// For functions with a frame pointer: 16 bytes above it the stack was before the call.
void look_at(const void* frame) {
  ++seen.calls;
  seen.misaligned += reinterpret_cast<std::uintptr_t>(frame) % 16 != 0;
}

// Found before any call: the loader needs more stack for that than they do.
const auto real_sincos = reinterpret_cast<void (*)(double, double*, double*)>(dlsym(RTLD_NEXT, "sincos"));
const auto real_sincosf = reinterpret_cast<void (*)(float, float*, float*)>(dlsym(RTLD_NEXT, "sincosf"));

}  // namespace

// Everything that libxfm imports, with a look at the stack.
void* xfmMalloc(std::size_t size) {
  look_at(__builtin_frame_address(0));
  return std::aligned_alloc(64, (size + 63) / 64 * 64);
}

void xfmFree(void* block) {
  look_at(__builtin_frame_address(0));
  std::free(block);
}

int ownGetFeature(int) {
  look_at(__builtin_frame_address(0));
  return 0;
}

extern "C" void sincos(double x, double* sine, double* cosine) noexcept {
  look_at(__builtin_frame_address(0));
  real_sincos(x, sine, cosine);
}

extern "C" void sincosf(float x, float* sine, float* cosine) noexcept {
  look_at(__builtin_frame_address(0));
  real_sincosf(x, sine, cosine);
}

namespace xfm::test {
namespace {

using Arguments = std::vector<std::uint64_t>;

std::uint64_t as_argument(const void* pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

/// The function itself: a program's pointer to it would be a wrapper of its own.
const void* address(const std::string& name) {
  const void* const found = dlsym(RTLD_DEFAULT, name.c_str());
  if (found == nullptr) throw std::runtime_error("no function " + name);
  return found;
}

/// Flushed denormals, rounding toward zero, an x87 unit of 53 bits that rounds down; or all status bits set.
const std::vector<Start>& starts() {
  static const std::vector<Start> all = {
      {.junk = nan_64}, {.junk = nan_32}, {.mxcsr = 0xFFC0, .control = 0x67F}, {.mxcsr = 0x1FBF}};
  return all;
}

enum class Ways {
  all,  ///< every start, every flag
  few,  ///< for functions that lead to others
};

void call_once(const Visit& visit, const std::string& name, const std::string& group, const std::string& how,
               const Arguments& arguments, const Start& start, bool quiet) {
  const int before = seen.calls;
  const Finish finish = probe(address(name), arguments, start);
  visit({name, seen.calls == before ? group : group + outside, how, start, finish, quiet});
}

void call(const Visit& visit, const std::string& name, const std::string& group, const std::string& how,
          const Arguments& arguments, bool quiet, Ways ways = Ways::all) {
  for (const Start& start : starts()) {
    call_once(visit, name, group, how, arguments, start, quiet);
    if (ways == Ways::few) break;
  }
}

/// Inputs and outputs for any call here, ordinary numbers of one precision.
class Data {
 public:
  static constexpr int count = 1 << 17;

  explicit Data(Precision precision)
      : src(Random("state").array(precision, count)), dst(precision, count), buffer(precision, count) {}

  Array src, dst, buffer;
};

Data& data(Precision precision) {
  static Data single(Precision::binary32), twice(Precision::binary64);
  return precision == Precision::binary32 ? single : twice;
}

Precision precision_of(const std::string& type) {
  return type.starts_with("32") ? Precision::binary32 : Precision::binary64;
}

bool has_buffer(const std::string& family) { return family.ends_with("WHT"); }

/// Aligned and unaligned, with a work buffer and without, with every flag and after mistakes.
template <class ToArguments>
void call_transform(const Visit& visit, const std::string& name, const std::string& family,
                    const std::string& type, Ways ways, const ToArguments& arguments) {
  Data& arrays = data(precision_of(type));
  void* const buffer = arrays.buffer.data();
  const std::string group = family + " " + type;
  for (int offset = 0; offset < 2; ++offset) {
    void *const src = arrays.src.at(offset), *const dst = arrays.dst.at(offset);
    const auto with = [&](const std::string& how, const Arguments& all) {
      call(visit, name, group, (offset == 0 ? "aligned, " : "unaligned, ") + how, all, true, ways);
    };
    with("flag 8", arguments(src, dst, 8, buffer));
    if (has_buffer(family)) with("no buffer", arguments(src, dst, 8, nullptr));
    if (ways == Ways::few) continue;
    for (const std::int32_t flag : {1, 2, 4})
      with("flag " + std::to_string(flag), arguments(src, dst, flag, buffer));
    with("bad flag", arguments(src, dst, 3, buffer));
    with("no array", arguments(nullptr, dst, 8, buffer));
  }
}

std::uint64_t word(std::int64_t value) { return static_cast<std::uint64_t>(value); }

template <class T>
void probe_dct4(const Visit& visit, const char* type, int longest) {
  const std::string suffix = std::string("_") + type;
  const auto run = [&](const std::string& function, int length, const Arguments& arguments,
                       bool quiet = true) {
    const std::string name = "xfmDCT4" + function + suffix;
    call(visit, name, name, "length " + std::to_string(length), arguments, quiet);
  };
  for (int length = XFM_DCT4_MIN_LENGTH; length <= longest; length *= 2) {
    std::int32_t size = 0;
    run("GetSize", length, {word(length), as_argument(&size)});
    Array src = Random("state").array(precision_of(type), length, Kind::ordinary),
          dst(precision_of(type), length);
    std::vector<std::byte> block(static_cast<std::size_t>(size) +
                                 64);  // unaligned, it may need a little more
    for (int offset = 0; offset < 2; ++offset) {
      void* state = nullptr;
      run("Init", length, {as_argument(&state), word(length), as_argument(block.data() + offset)}, false);
      run("", length, {as_argument(src.data()), as_argument(dst.data()), as_argument(state)});
    }
    // Released as often as it is made: calls come in fours, one for each start.
    for (const Start& start : starts()) {
      void* state = nullptr;
      const auto once = [&](const std::string& name, const Arguments& arguments) {
        call_once(visit, name, name, "length " + std::to_string(length), arguments, start, false);
      };
      once("xfmDCT4InitAlloc" + suffix, {as_argument(&state), word(length)});
      once("xfmDCT4Free" + suffix, {as_argument(state)});
    }
  }
}

}  // namespace

void probe_kernels(const Visit& visit) {
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    call_transform(visit, kernel.name, kernel.family, kernel.type, Ways::all,
                   [](const void* src, void* dst, std::int32_t flag, void* buffer) {
                     return Arguments{as_argument(src), as_argument(dst), word(flag), as_argument(buffer)};
                   });
}

void probe_generic_functions(const Visit& visit) {
  for (const catalogue::Generic& generic : catalogue::generics())
    for (int length = generic.lowest - 1; length <= generic.highest + 1; ++length)
      call_transform(visit, generic.name, generic.family, generic.type, Ways::few,
                     [&](const void* src, void* dst, std::int32_t flag, void* buffer) {
                       return Arguments{as_argument(src), as_argument(dst), word(length), word(flag),
                                        as_argument(buffer)};
                     });
}

void probe_dct4(const Visit& visit) {
  probe_dct4<float>(visit, "32f", 1 << 20);
  probe_dct4<double>(visit, "64f", 1 << 19);
}

void probe_others(const Visit& visit) {
  std::uint32_t size = 0;
  call(visit, "xfmGetLibVersion", "others", "", {}, true);
  for (const std::string name : {"xfmWHTGetBufferSize_32f", "xfmWHTGetBufferSize_64f"})
    for (int order = 0; order <= 14; ++order)
      call(visit, name, "others", "", {word(order), as_argument(&size)}, true);
}

// From contiguous transforms, lanes and scattered ones to each of these: as many as fill registers, and one
// more.
void probe_batches(const Visit& visit) {
  for (const catalogue::Batch& batch : catalogue::batches()) {
    for (int length = batch.lowest - 1; length <= batch.highest; ++length) {
      const std::int64_t count = 17, size = has_buffer(batch.family) ? std::int64_t{1} << length : length + 2;
      if (4 * (size + 1) * count > Data::count) continue;
      const catalogue::Places roads[] = {{1, size}, {count, 1}, {2, 2 * size + 1}};
      for (const auto& from : roads)
        for (const auto& to : roads)
          call_transform(visit, batch.name, "Many" + std::string(batch.family), batch.type, Ways::few,
                         [&](const void* src, void* dst, std::int32_t flag, void* buffer) {
                           return Arguments{as_argument(src),   word(from.stride), word(from.distance),
                                            as_argument(dst),   word(to.stride),   word(to.distance),
                                            word(length),       word(count),       word(flag),
                                            as_argument(buffer)};
                         });
    }
  }
}

Callees callees() { return seen; }

}  // namespace xfm::test
