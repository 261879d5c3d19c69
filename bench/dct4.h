// The DCT-IV as a contestant, and its rivals. It is not in the catalogue of kernels: a state of each length
// takes the place of a kernel.
#pragma once

#include <span>
#include <vector>

#include "bench/arrays.h"
#include "bench/contestant.h"
#include "bench/library.h"
#include "bench/rivals.h"
#include "tools/catalogue.h"

namespace xfm::bench {

/// The lengths 2 to 2^22 in both precisions, as rows like those of the catalogue; the family is "DCT4". The
/// operation counts are those of the best known algorithms.
std::span<const catalogue::Kernel> dct4_kernels();

/// The form of such a row on the baseline, as far as the limit asks.
catalogue::Form dct4_form(const catalogue::Kernel& kernel);

/// A state of the row's length, which the library itself initialises.
ContestantPtr make_dct4(const Library& library, const catalogue::Kernel& kernel, Arrays& arrays);

/// The fastest of FFTW's own DCT-IV and of those made from its complex transform of half the length by a
/// twist, which is written in the widest registers of this processor.
template <class Real>
ContestantPtr fftw_dct4(int length, Arrays& arrays);

/// The twist in plain loops, compiled for this processor; the twist in the registers that every x86-64
/// processor has; and, as a yardstick, three copies from memory to memory.
template <class Real>
std::vector<NamedContestant> further_dct4_rivals(int length, Arrays& arrays);

}  // namespace xfm::bench
