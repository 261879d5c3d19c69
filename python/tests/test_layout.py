"""Conversion of half spectra, by the words of the layouts."""

import numpy as np
import pytest

import xfm
from support import REALS, complex_of, data

lengths = pytest.mark.parametrize("n", (1, 2, 3, 4, 5, 8, 17, 64, 100))
reals = pytest.mark.parametrize("real", REALS)


def written_out(spectrum, n, layout):
    numbers = [spectrum[0].real]
    if layout == "perm" and n % 2 == 0:
        numbers.append(spectrum[n // 2].real)
    for k in range(1, (n + 1) // 2):
        numbers += [spectrum[k].real, spectrum[k].imag]
    if layout == "pack" and n % 2 == 0:
        numbers.append(spectrum[n // 2].real)
    return np.array(numbers)


@lengths
@reals
@pytest.mark.parametrize("layout", ("pack", "perm"))
def test_there_and_back(n, layout, real):
    spectra = np.fft.rfft(data((3, n), real)).astype(complex_of(real))
    packed = xfm.layout.convert(spectra, "ccs", layout, n)
    assert packed.dtype == real and packed.shape == (3, n)
    for row, spectrum in zip(packed, spectra):
        assert np.array_equal(row, written_out(spectrum, n, layout))
    again = xfm.layout.convert(packed, layout, "ccs")
    assert again.dtype == spectra.dtype and np.array_equal(again, spectra)
    other = "perm" if layout == "pack" else "pack"
    assert np.array_equal(xfm.layout.convert(packed, layout, other), xfm.layout.convert(spectra, "ccs", other, n))


def test_axis():
    spectra = np.fft.rfft(data((8, 3, 2), float), axis=0)
    packed = xfm.layout.convert(spectra, "ccs", "pack", axis=0)
    assert packed.shape == (8, 3, 2)
    assert np.array_equal(packed[:, 1, 1], written_out(spectra[:, 1, 1], 8, "pack"))


def test_result_is_new():
    packed = data((3, 7), float)
    assert not np.shares_memory(packed, xfm.layout.convert(packed, "pack", "pack"))
    assert not np.shares_memory(packed, xfm.layout.convert(packed, "pack", "perm"))


def test_errors():
    with pytest.raises(ValueError, match="'packed'"):
        xfm.layout.convert(np.ones(8), "packed", "ccs")
    with pytest.raises(TypeError, match="complex"):
        xfm.layout.convert(np.ones(5), "ccs", "pack")
    with pytest.raises(TypeError, match="real"):
        xfm.layout.convert(np.ones(5, complex), "pack", "ccs")
    for n in (6, 7, 10):
        with pytest.raises(ValueError, match="5 numbers"):
            xfm.layout.convert(np.ones(5, complex), "ccs", "pack", n)
