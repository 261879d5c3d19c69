// States of the DCT-IV in blocks of exactly the queried size, at any address, one after another in the same
// block.
#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/report.h"
#include "tests/dct4/engine.h"
#include "tests/support/guarded.h"

namespace xfm::fuzz {
namespace {

using test::Engine;
using test::Guarded;

constexpr std::size_t page = 4096;
constexpr std::int32_t longest_run = 1 << 14;
constexpr std::size_t largest_block = std::size_t{1} << 20;
constexpr std::int32_t longest_refused = 1 << 12;
constexpr std::int32_t unwritten = 0x5A5A5A5A;

/// Blocks end at a guard page. Whether bit 31 of an address is set matters to a state, so there is one of
/// each.
class Blocks {
 public:
  explicit Blocks(std::uintptr_t bit31) {
    constexpr std::uintptr_t low = std::uintptr_t{1} << 31, around = std::uintptr_t{1} << 40;
    for (std::uintptr_t base = around; memory_ == nullptr; base += 2 * low) {
      void* const wanted = reinterpret_cast<void*>(base + bit31 * low + low / 2);
      void* const got = mmap(wanted, largest_block + 2 * page, PROT_NONE,
                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
      if (got == wanted) memory_ = static_cast<std::byte*>(got) + page;
    }
    require(mprotect(memory_, largest_block, PROT_READ | PROT_WRITE) == 0, "mprotect");
  }
  std::byte* end() const { return memory_ + largest_block; }

 private:
  std::byte* memory_ = nullptr;
};

/// What the header grants a state beyond the size returned: 23 bytes, of the shortest and in one half of all
/// addresses, where a block is not aligned to 32.
std::size_t granted(const std::byte* block, std::int32_t length) {
  const auto address = reinterpret_cast<std::uintptr_t>(block);
  return length <= 32 && (address >> 31 & 1) != 0 && address % 32 != 0 ? 23 : 0;
}

/// Powers of two in the range of the precision. Others are accepted too, whose states are of no use.
template <class T>
bool is_served(std::int64_t length) {
  return length >= 2 && length <= std::int64_t{1} << Engine<T>::longest && (length & (length - 1)) == 0;
}

/// Accepted although they are no lengths of a DCT-IV: see the hazards in the header.
template <class T>
bool is_hazard(std::int64_t length) {
  constexpr std::int64_t first_wrapped = std::int64_t{1} << (Engine<T>::longest + 4);
  const std::int64_t even = length & ~std::int64_t{1};
  if (length == even + 1 && is_served<T>(even)) return even >= (sizeof(T) == 4 ? 32 : 8);
  return even == first_wrapped || even == std::int64_t{1} << 30;
}

/// By a state of its own in aligned memory.
template <class T>
std::vector<T> expected(std::int32_t length, const std::vector<T>& src) {
  static std::map<std::int32_t, std::unique_ptr<test::Owned<T>>> states;
  auto& state = states[length];
  if (!state) state = std::make_unique<test::Owned<T>>(length);
  std::vector<T> dst(src.size());
  require(state->run(src.data(), dst.data()) == xfmStsOk, "run of an allocated state");
  return dst;
}

template <class T>
std::vector<T> draw(Input& input, std::int32_t length) {
  std::vector<T> values = test::noise<T>(static_cast<std::size_t>(length), input.any<std::uint8_t>());
  if (input.one_in(4)) input.fill(values.data(), values.size() * sizeof(T));
  return values;
}

template <class T>
bool same(T a, T b) {
  return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}

/// Arrays at any address too; src is write-protected unless it is dst.
template <class T>
void run(Input& input, typename Engine<T>::State* state, std::int32_t length) {
  const std::vector<T> data = draw<T>(input, length), result = expected(length, data);
  const std::size_t bytes = data.size() * sizeof(T);
  Guarded from(bytes + 64), to(bytes + 64);
  std::byte *const src = from.end() - bytes - input.between(0, 64),
                   *dst = to.end() - bytes - input.between(0, 64);
  std::memcpy(src, data.data(), bytes);
  if (input.one_in(2))
    dst = src;
  else
    from.forbid_writing();
  require(Engine<T>::run(reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), state) == xfmStsOk,
          "run");
  std::vector<T> got(data.size());
  std::memcpy(got.data(), dst, bytes);
  require(std::equal(got.begin(), got.end(), result.begin(), same<T>),
          "length " + std::to_string(length) + ": other bits than in an aligned block");
  require(Engine<T>::run(nullptr, reinterpret_cast<T*>(dst), state) == xfmStsNullPtr, "run without src");
  require(Engine<T>::run(reinterpret_cast<const T*>(src), nullptr, state) == xfmStsNullPtr,
          "run without dst");
}

std::int32_t draw_length(Input& input) {
  if (input.one_in(8)) return input.any<std::int32_t>();
  const std::int32_t power = std::int32_t{1} << input.between(0, 30);
  return input.one_in(4) ? power + input.between(-3, 3) : power;
}

template <class T>
void make_state(Input& input, const Blocks& blocks) {
  const std::int32_t length = draw_length(input);
  std::int32_t size = unwritten;
  const xfmStatus status = Engine<T>::get_size(length, &size);
  const bool accepted = is_served<T>(length) || is_hazard<T>(length);
  require(status == (accepted ? xfmStsOk : xfmStsBadSize), "size of length " + std::to_string(length));
  require(accepted ? size > 0 : size == unwritten, "the size of length " + std::to_string(length));

  auto* state = reinterpret_cast<typename Engine<T>::State*>(&size);
  auto* const before = state;
  require(Engine<T>::init(nullptr, length, blocks.end()) == xfmStsNullPtr, "init without state");
  require(Engine<T>::init(&state, length, nullptr) == xfmStsNullPtr && state == before, "init without block");
  // A length may be refused after part of its plan was written, however long that is.
  const auto bytes = accepted ? static_cast<std::size_t>(size) : largest_block / 2;
  if ((accepted && !is_served<T>(length)) || bytes > largest_block / 2 ||
      (!accepted && length > longest_refused))
    return;

  std::byte* block = blocks.end() - bytes - input.between(0, 96);
  block -= granted(block, length);
  const xfmStatus made = Engine<T>::init(&state, length, block);
  require(made == (accepted ? xfmStsOk : xfmStsBadSize), "init of length " + std::to_string(length));
  note_kind(static_cast<std::uint32_t>(length),
            static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(block) & 31));
  if (!accepted) {
    require(state == before, "a refused init wrote the state");
  } else if (length <= longest_run) {
    run<T>(input, state, length);
  }
}

}  // namespace
}  // namespace xfm::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const xfm::fuzz::Blocks low(0), high(1);
  xfm::fuzz::Input input(data, size);
  const auto& blocks = input.one_in(2) ? high : low;
  for (int states = input.between(1, 3); states > 0; --states) {
    if (input.one_in(2))
      xfm::fuzz::make_state<double>(input, blocks);
    else
      xfm::fuzz::make_state<float>(input, blocks);
  }
  return 0;
}
