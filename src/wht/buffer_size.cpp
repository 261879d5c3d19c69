#include "src/wht/passes.h"
#include "xfm.h"

namespace {

template <class T>
xfmStatus get_buffer_size(std::int32_t order, std::uint32_t* size) {
  using namespace xfm::wht;
  if (order < lowest_order || order > highest_order) return xfmStsBadSize;
  *size = passes<T>(order).template buffer_bytes<T>();
  return xfmStsOk;
}

}  // namespace

xfmStatus xfmWHTGetBufferSize_32f(int32_t order, uint32_t* size) {
  return get_buffer_size<xfm32f>(order, size);
}
xfmStatus xfmWHTGetBufferSize_64f(int32_t order, uint32_t* size) {
  return get_buffer_size<xfm64f>(order, size);
}
