#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "fuzz/calls.h"
#include "fuzz/expected.h"
#include "fuzz/report.h"
#include "tests/support/guarded.h"
#include "tests/wht/kernels.h"

namespace xfm::fuzz {
namespace {

using catalogue::Generic;
using catalogue::Kernel;
using test::Array;
using test::Guarded;

/// A kernel, called by its own name or through the generic function.
struct Call {
  const Kernel* kernel = nullptr;  ///< null if the length is not served
  const Generic* generic = nullptr;
  std::int32_t length = 0, flag = 0;
  bool src_null = false, dst_null = false;

  const char* name() const { return generic != nullptr ? generic->name : kernel->name; }
  xfmStatus status() const { return expected_status(kernel != nullptr, src_null || dst_null, flag); }
  bool takes_buffer() const {
    return generic != nullptr ? generic->call_with_buffer != nullptr : kernel->call_with_buffer != nullptr;
  }

  xfmStatus run(const void* src, void* dst, void* buffer) const {
    const void* const from = src_null ? nullptr : src;
    void* const to = dst_null ? nullptr : dst;
    if (generic == nullptr)
      return takes_buffer() ? kernel->call_with_buffer(from, to, flag, buffer) : kernel->call(from, to, flag);
    return takes_buffer() ? generic->call_with_buffer(from, to, length, flag, buffer)
                          : generic->call(from, to, length, flag);
  }
  std::string text() const {
    return std::string(name()) + "(" + (src_null ? "null, " : "src, ") + (dst_null ? "null, " : "dst, ") +
           (generic != nullptr ? std::to_string(length) + ", " : "") + std::to_string(flag) + ")";
  }
};

Call decode(Input& input) {
  Call call;
  if (input.one_in(3)) {
    const auto generics = catalogue::generics();
    call.generic = &generics[input.between<std::size_t>(0, generics.size() - 1)];
    call.length = input.length(call.generic->lowest, call.generic->highest);
    call.kernel = find_kernel(call.generic->family, call.generic->type, call.length);
  } else {
    const auto kernels = catalogue::kernels();
    call.kernel = &kernels[input.between<std::size_t>(0, kernels.size() - 1)];
  }
  call.flag = input.flag();
  call.src_null = input.one_in(32);
  call.dst_null = input.one_in(32);
  return call;
}

/// The work buffer of a call: of exactly its size, none, or where it must not be touched, no memory at all.
class Buffer {
 public:
  Buffer(Input& input, const Call& call, const Guarded& memory) {
    const bool used = call.status() == xfmStsOk && call.kernel->buffer_bytes > 0;
    if (!call.takes_buffer() || input.one_in(2)) return;
    address_ = used ? memory.end() - call.kernel->buffer_bytes : memory.end() + input.between(0, 15);
  }
  void* address() const { return address_; }

 private:
  std::byte* address_ = nullptr;
};

Guarded& buffer_memory() {
  static Guarded memory(std::size_t{1} << 17);
  return memory;
}

/// Any byte near an end of the memory.
std::byte* place(Input& input, const Guarded& memory, std::size_t bytes) {
  const auto offset = static_cast<std::ptrdiff_t>(input.between<std::size_t>(0, 64));
  return input.one_in(2) ? memory.begin() + offset : memory.end() - bytes - offset;
}

void refuse(Input& input, const Call& call) {
  const Buffer buffer(input, call, buffer_memory());
  std::byte* const nowhere = buffer_memory().end() + input.between(0, 64);
  require(call.run(nowhere, nowhere, buffer.address()) == call.status(), call.text() + ": status");
}

/// src is write-protected, and what surrounds dst must stay as it is.
void run_apart(Input& input, const Call& call) {
  const Kernel& kernel = *call.kernel;
  const Array data = draw(input, kernel.precision, kernel.read);
  const Array expected = expected_output(kernel, data, call.flag);
  Guarded from(data.bytes() + 64), to(expected.bytes() + 64);
  std::byte *const src = place(input, from, data.bytes()), *const dst = place(input, to, expected.bytes());
  std::memcpy(src, data.data(), data.bytes());
  from.forbid_writing();
  std::fill(to.begin(), to.end(), std::byte{untouched});
  const Buffer buffer(input, call, buffer_memory());
  require(call.run(src, dst, buffer.address()) == xfmStsOk, call.text() + ": status");
  require_output(dst, expected, call.text());
  const auto same = [](std::byte b) { return b == std::byte{untouched}; };
  require(std::all_of(to.begin(), dst, same), call.text() + ": wrote before dst");
  require(std::all_of(dst + expected.bytes(), to.end(), same), call.text() + ": wrote after dst");
}

/// The arrays may overlap in any way, by single bytes too.
void run_overlapping(Input& input, const Call& call) {
  const Kernel& kernel = *call.kernel;
  const Array data = draw(input, kernel.precision, kernel.read);
  const Array expected = expected_output(kernel, data, call.flag);
  const auto read = static_cast<std::ptrdiff_t>(data.bytes()),
             written = static_cast<std::ptrdiff_t>(expected.bytes());
  const std::ptrdiff_t shift = input.one_in(3) ? 0 : input.between(-written, read);
  const std::ptrdiff_t before = std::max<std::ptrdiff_t>(-shift, 0),
                       all = before + std::max(read, shift + written);
  Guarded memory(static_cast<std::size_t>(all) + 64);
  std::fill(memory.begin(), memory.end(), std::byte{untouched});
  std::byte *const src = place(input, memory, static_cast<std::size_t>(all)) + before, *const dst =
                                                                                           src + shift;
  std::memcpy(src, data.data(), data.bytes());
  std::vector<std::byte> image(memory.begin(), memory.end());
  const Buffer buffer(input, call, buffer_memory());
  const std::string text = call.text() + ", dst " + std::to_string(shift) + " bytes after src";
  require(call.run(src, dst, buffer.address()) == xfmStsOk, text + ": status");
  require_output(dst, expected, text);
  std::copy(dst, dst + written, image.begin() + (dst - memory.begin()));
  require(std::equal(image.begin(), image.end(), memory.begin()), text + ": wrote beside dst");
}

}  // namespace

void call_single(Input& input) {
  const Call call = decode(input);
  const bool refused = call.status() != xfmStsOk, overlapping = !refused && input.one_in(3);
  if (refused)
    refuse(input, call);
  else if (overlapping)
    run_overlapping(input, call);
  else
    run_apart(input, call);
  const auto number = call.kernel == nullptr ? 0 : call.kernel - catalogue::kernels().data();
  note_kind(static_cast<std::uint32_t>(number), call.generic != nullptr ? 8U
                                                : overlapping           ? 1U
                                                : refused               ? 2U
                                                                        : 0U);
}

}  // namespace xfm::fuzz
