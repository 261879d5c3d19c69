// Batches, which need libxfmmany: all rows of a matrix, then all columns.
#include <cstdio>
#include <vector>

#include "xfm_many.hpp"

xfm::status dft_of_picture(std::vector<std::complex<float>>& picture, std::size_t height, std::size_t width) {
  const auto rows = xfm::rows(picture, width);
  const auto columns = xfm::columns(picture, height);
  if (const xfm::status done = xfm::dft_forward(rows, rows, xfm::scale::none); done != xfm::status::ok)
    return done;
  return xfm::dft_forward(columns, columns, xfm::scale::none);
}

// The half spectra of 100 rows of 24 samples, bin by bin: those of one bin are neighbours.
std::vector<double> spectra_by_bins(const std::vector<double>& samples) {
  const std::size_t elements = xfm::element_count(xfm::layout::ccs, 24);
  std::vector<double> spectra(100 * elements);
  xfm::check(xfm::dft_forward<xfm::layout::ccs>(xfm::rows(samples, 24), xfm::columns(spectra, elements),
                                                xfm::scale::forward_by_n));
  return spectra;
}

int main() {
  std::vector<std::complex<float>> picture(16 * 40, 1);
  const char* done = to_string(dft_of_picture(picture, 16, 40));
  std::printf("%s, %.0f\n", done, static_cast<double>(picture[0].real()));
  std::printf("mean of row 99: %.0f\n", spectra_by_bins(std::vector<double>(100 * 24, 5))[99]);
}
