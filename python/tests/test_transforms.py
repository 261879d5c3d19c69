"""Every length that is served, in both precisions and with each norm, against numpy, scipy and definitions."""

import numpy as np
import pytest

import xfm
from support import (DCT4_LENGTHS, DFT_LENGTHS, NORMS, REALS, WHT_LENGTHS, assert_close, complex_of, data, dct4,
                     double, hartley, wht)

pytestmark = [pytest.mark.parametrize("real", REALS), pytest.mark.parametrize("norm", NORMS)]


@pytest.mark.parametrize("n", DFT_LENGTHS)
def test_complex(n, norm, real):
    x = data((5, n), complex_of(real))
    assert_close(xfm.fft(x, norm=norm), np.fft.fft(double(x), norm=norm), x.dtype)
    assert_close(xfm.ifft(x, norm=norm), np.fft.ifft(double(x), norm=norm), x.dtype)


@pytest.mark.parametrize("n", DFT_LENGTHS)
def test_real(n, norm, real):
    x = data((5, n), real)
    assert_close(xfm.rfft(x, norm=norm), np.fft.rfft(double(x), norm=norm), complex_of(real))
    spectra = data((5, n // 2 + 1), complex_of(real))
    assert_close(xfm.irfft(spectra, n, norm=norm), np.fft.irfft(double(spectra), n, norm=norm), real)
    assert_close(xfm.hartley(x, norm=norm), hartley(double(x), norm), real)


@pytest.mark.parametrize("n", WHT_LENGTHS)
def test_walsh_hadamard(n, norm, real):
    x = data((5, n), real)
    assert_close(xfm.wht(x, norm=norm), wht(double(x), norm), real)


@pytest.mark.parametrize("n", DCT4_LENGTHS)
def test_dct4(n, norm, real):
    x = data((3, n), real)
    assert_close(xfm.dct4(x, norm=norm), dct4(double(x), norm), real)


def test_dct4_by_its_definition(norm, real):
    n = 16
    x = data(n, real)
    places = np.arange(n) + 0.5
    matrix = np.cos(np.pi / n * np.outer(places, places)) * {"backward": 1, "ortho": (2 / n) ** 0.5, "forward": 2 / n}[norm]
    assert_close(xfm.dct4(x, norm=norm), matrix @ double(x), real)


def test_inverse_of_itself(norm, real):
    undoes = {"backward": "forward", "ortho": "ortho", "forward": "backward"}[norm]
    x = data((3, 32), real)
    for transform in (xfm.hartley, xfm.wht, xfm.dct4):
        assert_close(transform(transform(x, norm=norm), norm=undoes), double(x), real)
    assert_close(xfm.irfft(xfm.rfft(x, norm=norm), norm=norm), double(x), real)
