// The functions of batches as a table, for tests and bench; the kernels that they must agree with are in
// catalogue.h.
#pragma once

#include "tools/catalogue.h"

namespace xfm::catalogue {

/// In elements, as the functions take them.
struct Places {
  std::int64_t stride, distance;
};

/// Any function of batches, through one signature; those with a work buffer get a null one.
using BatchCall = xfmStatus (*)(const void* src, Places from, void* dst, Places to, std::int32_t length,
                                std::int64_t count, std::int32_t flag);

struct Batch {
  const char* name;    ///< exported name, "xfmManyDFTFwd_CToC_32fc"
  const char* family;  ///< "DFTFwd_CToC"
  const char* type;
  int lowest;   ///< least accepted length
  int highest;  ///< greatest accepted length
  BatchCall call;
};

std::span<const Batch> batches();

/// That of a kernel's family and type.
const Batch& batch(const Kernel& kernel);

/// How many real scalars an element of a kernel's arrays has.
inline int scalars_of_element(const Kernel& kernel) { return kernel.type[3] == 'c' ? 2 : 1; }

}  // namespace xfm::catalogue
