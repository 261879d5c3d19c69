#include "bench/rivals.h"

#include <array>
#include <string_view>

#include "bench/dct4.h"
#include "bench/fftw.h"
#include "bench/fftw_real.h"
#include "bench/loop_nest.h"

namespace xfm::bench {

namespace {

using fftw::Layout;

struct Rival {
  std::string_view family;
  std::string_view type;
  ContestantPtr (*make)(int length, Arrays& arrays);
};

// One row for each family and type.
constexpr std::array kRivals{
    Rival{"DFTFwd_CToC", "32fc", fftw::complex_dft<float, FFTW_FORWARD>},
    Rival{"DFTFwd_CToC", "64fc", fftw::complex_dft<double, FFTW_FORWARD>},
    Rival{"DFTInv_CToC", "32fc", fftw::complex_dft<float, FFTW_BACKWARD>},
    Rival{"DFTInv_CToC", "64fc", fftw::complex_dft<double, FFTW_BACKWARD>},
    Rival{"DFTFwd_RToCCS", "32f", fftw::real_dft<float, Layout::ccs>},
    Rival{"DFTFwd_RToCCS", "64f", fftw::real_dft<double, Layout::ccs>},
    Rival{"DFTFwd_RToPack", "32f", fftw::real_dft<float, Layout::pack>},
    Rival{"DFTFwd_RToPack", "64f", fftw::real_dft<double, Layout::pack>},
    Rival{"DFTFwd_RToPerm", "32f", fftw::real_dft<float, Layout::perm>},
    Rival{"DFTFwd_RToPerm", "64f", fftw::real_dft<double, Layout::perm>},
    Rival{"DFTInv_CCSToR", "32f", fftw::inverse_real_dft<float, Layout::ccs>},
    Rival{"DFTInv_CCSToR", "64f", fftw::inverse_real_dft<double, Layout::ccs>},
    Rival{"DFTInv_PackToR", "32f", fftw::inverse_real_dft<float, Layout::pack>},
    Rival{"DFTInv_PackToR", "64f", fftw::inverse_real_dft<double, Layout::pack>},
    Rival{"DFTInv_PermToR", "32f", fftw::inverse_real_dft<float, Layout::perm>},
    Rival{"DFTInv_PermToR", "64f", fftw::inverse_real_dft<double, Layout::perm>},
    Rival{"Hartley", "32f", fftw::hartley<float>},
    Rival{"Hartley", "64f", fftw::hartley<double>},
    Rival{"WHT", "32f", fftw::walsh_hadamard<float>},
    Rival{"WHT", "64f", fftw::walsh_hadamard<double>},
    Rival{"DCT4", "32f", fftw_dct4<float>},
    Rival{"DCT4", "64f", fftw_dct4<double>},
};

}  // namespace

ContestantPtr make_rival(const catalogue::Kernel& kernel, Arrays& arrays) {
  for (const Rival& rival : kRivals)
    if (rival.family == kernel.family && rival.type == kernel.type) return rival.make(kernel.length, arrays);
  return nullptr;
}

std::vector<NamedContestant> further_rivals(const catalogue::Kernel& kernel, Arrays& arrays) {
  std::vector<NamedContestant> rivals;
  const std::string_view family = kernel.family;
  const bool single = kernel.precision == catalogue::Precision::binary32;
  if (family == "DCT4")
    return single ? further_dct4_rivals<float>(kernel.length, arrays)
                  : further_dct4_rivals<double>(kernel.length, arrays);
  if (family != "WHT") return rivals;
  for (const LoopNest& nest : loop_nests) {  // one for each compiler at hand
    rivals.push_back({nest.name, single ? contestant(nest.binary32, kernel.length, arrays)
                                        : contestant(nest.binary64, kernel.length, arrays)});
  }
  return rivals;
}

std::string rival_version() { return fftw_version; }

}  // namespace xfm::bench
