#include "bench/rivals.h"

#include <array>
#include <string_view>

#include "bench/dct4.h"
#include "bench/fftw.h"

namespace xfm::bench {

namespace {

struct Rival {
  std::string_view family;
  std::string_view type;
  ContestantPtr (*make)(int length, Arrays& arrays);
};

// A family joins the bench with one row a type.
constexpr std::array kRivals{
    Rival{"DFTFwd_CToC", "32fc", fftw::complex_dft<float, FFTW_FORWARD>},
    Rival{"DFTFwd_CToC", "64fc", fftw::complex_dft<double, FFTW_FORWARD>},
    Rival{"DFTInv_CToC", "32fc", fftw::complex_dft<float, FFTW_BACKWARD>},
    Rival{"DFTInv_CToC", "64fc", fftw::complex_dft<double, FFTW_BACKWARD>},
    Rival{"DCT4", "32f", fftw_dct4<float>},
    Rival{"DCT4", "64f", fftw_dct4<double>},
};

}  // namespace

ContestantPtr make_rival(const catalogue::Kernel& kernel, Arrays& arrays) {
  for (const Rival& rival : kRivals)
    if (rival.family == kernel.family && rival.type == kernel.type) return rival.make(kernel.length, arrays);
  return nullptr;
}

std::string rival_version() { return fftw_version; }

}  // namespace xfm::bench
