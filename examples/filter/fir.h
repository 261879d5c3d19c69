// The coefficients of the filter.
#pragma once

#include <vector>

/// A band pass with linear phase: the ideal one times a Hamming window, sin(x)/x times a raised cosine. The
/// band's edges are fractions of the sampling rate, 0 to 1/2; the number of taps is odd. The signal is
/// delayed by (taps-1)/2 samples.
std::vector<float> band_pass(double low, double high, int taps);
