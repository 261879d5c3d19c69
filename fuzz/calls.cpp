// Any function of libxfm and libxfmmany but the DCT-IV, which has a target of its own.
#include "fuzz/calls.h"

#include <string>

#include "fuzz/report.h"
#include "tests/bits/data.h"
#include "tests/wht/kernels.h"

namespace xfm::fuzz {

test::Array draw(Input& input, catalogue::Precision precision, int count) {
  const auto data = test::all_data();
  const auto& kind = data[input.between<std::size_t>(0, data.size() - 1)];
  test::Random random(std::to_string(input.any<std::uint16_t>()));
  test::Array array = test::draw(kind, random, precision, count);
  if (input.one_in(2)) input.fill(array.data(), array.bytes());
  return array;
}

void call_size(Input& input) {
  constexpr std::uint32_t unwritten = 0x5A5A5A5A;
  const std::int32_t order = input.length(1, 13);
  const bool wide = input.one_in(2), served = order >= 1 && order <= 13;
  std::uint32_t size = unwritten;
  const xfmStatus status =
      wide ? xfmWHTGetBufferSize_64f(order, &size) : xfmWHTGetBufferSize_32f(order, &size);
  require(status == (served ? xfmStsOk : xfmStsBadSize), "status of a work buffer's size");
  require(size == (served ? test::buffer_sizes[wide][order - 1] : unwritten), "size of a work buffer");
}

}  // namespace xfm::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  xfm::fuzz::Input input(data, size);
  const int chance = input.between(0, 15);
  if (chance == 15)
    xfm::fuzz::call_size(input);
  else if (chance >= 9)
    xfm::fuzz::call_batch(input);
  else
    xfm::fuzz::call_single(input);
  return 0;
}
