"""What the tests share: data, references in double precision, and how close a result must come to them."""

import numpy as np
import scipy.fft
import scipy.linalg

import xfm

REALS = (np.float32, np.float64)
DFT_LENGTHS = range(2, 65)
WHT_LENGTHS = [2**order for order in range(1, 14)]
DCT4_LENGTHS = [2**k for k in range(1, 17)]
NORMS = ("backward", "ortho", "forward")


def data(shape, dtype, seed=1):
    random = np.random.default_rng(seed)
    real = random.standard_normal(shape)
    if np.issubdtype(dtype, np.complexfloating):
        return (real + 1j * random.standard_normal(shape)).astype(dtype)
    return real.astype(dtype)


def double(a):
    return np.asarray(a, np.result_type(a, np.float64))


def hartley(a, norm="backward", axis=-1):
    spectra = np.fft.fft(a, norm=norm, axis=axis)
    return spectra.real - spectra.imag


def wht(a, norm="backward"):
    length = a.shape[-1]
    factor = {"backward": 1, "ortho": 1 / np.sqrt(length), "forward": 1 / length}[norm]
    if length <= 64:
        return a @ scipy.linalg.hadamard(length) * factor
    for stride in (2**k for k in range(length.bit_length() - 1)):
        pairs = a.reshape(a.shape[:-1] + (-1, 2, stride))
        a = np.stack([pairs[..., 0, :] + pairs[..., 1, :], pairs[..., 0, :] - pairs[..., 1, :]], -2).reshape(a.shape)
    return a * factor


def dct4(a, norm="backward", axis=-1):
    return scipy.fft.dct(a, type=4, norm=norm, axis=axis) * {"backward": 0.5, "ortho": 1, "forward": 2}[norm]


def assert_close(result, reference, dtype):
    """The right type, and at most eight units of rounding of the greatest value away."""
    assert result.dtype == dtype
    assert result.shape == reference.shape
    bound = 8 * np.finfo(dtype).eps * np.abs(reference).max(initial=0)
    assert np.abs(result - reference).max(initial=0) <= bound


def complex_of(dtype):
    return np.result_type(dtype, np.complex64)


SAMPLES = {  # function: its reference, and whether it takes complex numbers
    "fft": (xfm.fft, np.fft.fft, True),
    "ifft": (xfm.ifft, np.fft.ifft, True),
    "rfft": (xfm.rfft, np.fft.rfft, False),
    "irfft": (xfm.irfft, np.fft.irfft, True),
    "hartley": (xfm.hartley, hartley, False),
    "dct4": (xfm.dct4, dct4, False),
}
