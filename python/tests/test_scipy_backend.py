"""scipy.fft with our backend: what it serves, what it leaves, and that both are right."""

import numpy as np
import pytest
import scipy.fft

import xfm
from support import NORMS, assert_close, data, double

real = pytest.mark.parametrize("real", (np.float32, np.float64))
norms = pytest.mark.parametrize("norm", (None,) + NORMS)


class OnlyOurs:
    """Leaves nothing to SciPy."""

    __ua_domain__ = "numpy.scipy.fft"
    __ua_function__ = staticmethod(xfm.scipy_backend.__ua_function__)


def ours(name, *args, **kwargs):
    with scipy.fft.set_backend(OnlyOurs, only=True):
        return getattr(scipy.fft, name)(*args, **kwargs)


@real
@norms
@pytest.mark.parametrize("name", ("fft", "ifft", "rfft", "irfft"))
@pytest.mark.parametrize("arguments", ({}, {"axis": 0}, {"n": 12, "axis": 1}, {"n": 64}, {"workers": 2}))
def test_one_axis(name, arguments, norm, real):
    x = data((16, 20), real if name == "rfft" else np.result_type(real, np.complex64))
    expected = getattr(scipy.fft, name)(double(x), norm=norm, **arguments)
    assert_close(ours(name, x, norm=norm, **arguments), expected, getattr(scipy.fft, name)(x).dtype)


@real
@norms
@pytest.mark.parametrize("name", ("fft2", "ifft2"))
@pytest.mark.parametrize("arguments", ({}, {"axes": (0, 1)}, {"axes": (2, 0)}, {"s": (8, 64)}, {"s": (32, 3), "axes": (1, 0)}))
def test_two_axes(name, arguments, norm, real):
    for dtype in (real, np.result_type(real, np.complex64)):
        x = data((6, 16, 20), dtype)
        expected = getattr(scipy.fft, name)(double(x), norm=norm, **arguments)
        assert_close(ours(name, x, norm=norm, **arguments), expected, np.result_type(real, np.complex64))


@real
@norms
@pytest.mark.parametrize("name", ("dct", "idct"))
@pytest.mark.parametrize("arguments", ({}, {"axis": 0}, {"n": 8}, {"n": 64, "axis": 0}))
def test_dct4(name, arguments, norm, real):
    x = data((16, 32), real)
    expected = getattr(scipy.fft, name)(double(x), type=4, norm=norm, **arguments)
    assert_close(ours(name, x, type=4, norm=norm, **arguments), expected, real)


LEFT = {
    "length": ("fft", (np.ones(65),), {}),
    "length of one axis": ("fft2", (np.ones((16, 65)),), {}),
    "length by s": ("ifft2", (np.ones((16, 16)),), {"s": (16, 100)}),
    "length of a DCT-IV": ("dct", (np.ones(33),), {"type": 4}),
    "another type": ("dct", (np.ones(32),), {}),
    "three axes": ("fft2", (np.ones((4, 4, 4)),), {"axes": (0, 1, 2)}),
    "one axis twice": ("fft2", (np.ones((4, 4)),), {"axes": (0, 0)}),
    "long double": ("fft", (np.ones(8, np.longdouble),), {}),
    "complex DCT": ("dct", (np.ones(8, complex),), {"type": 4}),
    "another function": ("hfft", (np.ones(8),), {}),
    "no workers": ("fft", (np.ones(8),), {"workers": 0}),
    "workers of no number": ("fft", (np.ones(8),), {"workers": "many"}),
    "norm": ("dct", (np.ones(8),), {"type": 4, "norm": "other"}),
}


@pytest.mark.parametrize("case", LEFT)
def test_left_to_scipy(case):
    name, args, kwargs = LEFT[case]
    with pytest.raises(Exception, match="No selected backends"):
        ours(name, *args, **kwargs)
    outcomes = []
    for backend in (xfm.scipy_backend, "scipy"):
        with scipy.fft.set_backend(backend):
            try:
                outcomes.append(getattr(scipy.fft, name)(*args, **kwargs))
            except (TypeError, ValueError, RuntimeError) as error:
                outcomes.append(repr(error))
    assert np.array_equal(*outcomes)


def test_input_is_kept():
    x = data((8, 8), np.complex64)
    before = x.copy()
    for name in ("fft", "fft2"):
        ours(name, x)
    assert np.array_equal(x, before)
