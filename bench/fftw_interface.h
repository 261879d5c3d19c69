// Programs written for FFTW: its interface in front of xfm beside FFTW itself.
#pragma once

namespace xfm::bench {

/// Races plans of one transform, of batches, and of two dimensions, and prints the times and their ratios;
/// single ones beside the bare kernel too, which shows what the interface costs.
void race_fftw_interface(int rounds);

}  // namespace xfm::bench
