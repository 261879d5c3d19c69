// Batches beside FFTW's and beside single calls.
#pragma once

#include <string>
#include <vector>

#include "tools/many_catalogue.h"

namespace xfm::bench {

struct ManyOptions {
  int rounds = 100;
  bool alone = false;  ///< without FFTW, whose patient plans take minutes
};

/// Races the batches of these kernels, for two counts and for both roads to memory that FFTW has too, and
/// prints the times and their ratios.
void race_batches(const std::vector<const catalogue::Kernel*>& kernels, const ManyOptions& options);

}  // namespace xfm::bench
