// The half spectrum of a real sequence of N samples, bins 0 to N/2, as the three packed layouts hold it. In
// bin 0 and, for even N, in bin N/2 the imaginary part is zero: CCS stores it, Pack and Perm leave it out.
#pragma once

#include <optional>
#include <vector>

#include "tools/catalogue.h"

namespace xfm::test {

enum class Layout { ccs, pack, perm };
constexpr Layout layouts[] = {Layout::ccs, Layout::pack, Layout::perm};

enum class Part { real, imaginary, zero };

/// What one element of a layout holds. A zero is an imaginary part that is not free: forward kernels store +0
/// there, inverse kernels do not read it.
struct Cell {
  int bin;
  Part part;
  bool operator==(const Cell&) const = default;
};

/// Element by element.
std::vector<Cell> cells(Layout layout, int length);

/// Which layout a family of real transforms has, and on which side.
struct RealFamily {
  const char* name;
  Layout layout;
  bool forward;
};
constexpr RealFamily real_families[] = {
    {"DFTFwd_RToCCS", Layout::ccs, true},    {"DFTFwd_RToPack", Layout::pack, true},
    {"DFTFwd_RToPerm", Layout::perm, true},  {"DFTInv_CCSToR", Layout::ccs, false},
    {"DFTInv_PackToR", Layout::pack, false}, {"DFTInv_PermToR", Layout::perm, false},
};

/// Null if the kernel is not a real Fourier transform.
const RealFamily* real_family(const catalogue::Kernel& kernel);

/// Scalars of dst that the factor multiplies: all but the stored zeros.
int scaled_outputs(const catalogue::Kernel& kernel);

/// Whether the factor may multiply scalar `out` of dst while that is still a binary64 value: in forward
/// kernels of binary32 whose output stage is a direct block or a rotation, and never in bin 0.
bool may_scale_before_narrowing(const catalogue::Kernel& kernel, int out);

}  // namespace xfm::test
