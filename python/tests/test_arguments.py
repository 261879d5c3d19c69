"""What is refused, and what is said then."""

import inspect

import numpy as np
import pytest

import xfm

DFT = ("fft", "ifft", "rfft", "irfft", "hartley")


@pytest.mark.parametrize("name", DFT)
@pytest.mark.parametrize("n", (0, 1, 65, -1, 2**31 + 2, 2**62))
def test_lengths_of_dft(name, n):
    with pytest.raises(ValueError, match="the lengths served are 2 to 64$"):
        getattr(xfm, name)(np.ones(2), n)


@pytest.mark.parametrize("n", (0, 1, 3, 2**14, -2, 2**32 + 2))
def test_lengths_of_wht(n):
    with pytest.raises(ValueError, match=r"length -?\d+; the lengths served are the powers of two from 2\*\*1 to 2\*\*13$"):
        xfm.wht(np.ones(2), n)


@pytest.mark.parametrize("n", [0, 1, 3, -2, 2**29, 2**29 + 1, 2**30, 2**30 + 1, 2**27, 2**32 + 2] +
                         [2**k + 1 for k in range(1, 27)])
@pytest.mark.parametrize("dtype", (np.float32, np.float64))
def test_lengths_of_dct4(n, dtype):
    with pytest.raises(ValueError, match="powers of two from 2 to 67108864, in double precision to 33554432$"):
        xfm.dct4(np.ones(2, dtype), n)


def test_longest_dct4_in_double_precision():
    with pytest.raises(ValueError, match="does not serve length 67108864"):
        xfm.dct4(np.ones(2), 2**26)


def test_constants():
    assert (xfm.DFT_MIN_LENGTH, xfm.DFT_MAX_LENGTH) == (2, 64)
    assert (xfm.WHT_MIN_ORDER, xfm.WHT_MAX_ORDER) == (1, 13)
    assert (xfm.DCT4_MIN_LENGTH, xfm.DCT4_MAX_LENGTH_32F, xfm.DCT4_MAX_LENGTH_64F) == (2, 2**26, 2**25)
    assert xfm.__version__ == "6.1"


@pytest.mark.parametrize("name", ("rfft", "hartley", "wht", "dct4"))
def test_complex_input_of_real_transforms(name):
    with pytest.raises(TypeError, match="real numbers"):
        getattr(xfm, name)(np.ones(8, complex))


@pytest.mark.parametrize("dtype", (np.longdouble, np.clongdouble, object, "U3", "M8[s]"))
def test_types(dtype):
    for transform in (xfm.fft, xfm.irfft):
        with pytest.raises(TypeError, match="single and double precision"):
            transform(np.zeros(8, dtype))


def test_axis():
    for axis in (2, -3):
        with pytest.raises(ValueError, match="out of bounds"):
            xfm.fft(np.ones((8, 8)), axis=axis)
    with pytest.raises(ValueError, match="out of bounds"):
        xfm.fft(1.0)
    with pytest.raises(TypeError):
        xfm.fft(np.ones(8), axis=0.5)


def test_norm():
    for norm in ("orthogonal", "", 1):
        with pytest.raises(ValueError, match="norm is"):
            xfm.fft(np.ones(8), norm=norm)
    assert np.array_equal(xfm.fft(np.arange(8), norm=None), xfm.fft(np.arange(8), norm="backward"))


def test_out():
    x = np.ones((4, 8))
    with pytest.raises(TypeError, match="not an array"):
        xfm.rfft(x, out=[1, 2])
    with pytest.raises(TypeError, match="complex64, not complex128"):
        xfm.rfft(x, out=np.zeros((4, 5), np.complex64))
    with pytest.raises(ValueError, match=r"\(4, 8\), not \(4, 5\)"):
        xfm.rfft(x, out=np.zeros((4, 8), complex))
    with pytest.raises(ValueError, match=r"\(5,\), not \(4, 5\)"):
        xfm.rfft(x, out=np.zeros(5, complex))
    constant = np.zeros((4, 5), complex)
    constant.flags.writeable = False
    with pytest.raises(ValueError, match="read-only"):
        xfm.rfft(x, out=constant)
    assert not constant.any()


def test_calls():
    for positional, named in (((), {}), ((np.ones(8), None, -1, None, None, None), {}), ((np.ones(8),), {"b": 1}),
                              ((np.ones(8),), {"a": np.ones(8)})):
        with pytest.raises(TypeError):
            xfm.fft(*positional, **named)
    assert xfm.fft(a=np.ones(8), n=4, axis=0, norm="ortho", out=None)[0] == 2


@pytest.mark.parametrize("name", DFT + ("wht", "dct4"))
def test_signatures(name):
    function = getattr(xfm, name)
    assert str(inspect.signature(function)) == "(a, n=None, axis=-1, norm=None, out=None)"
    assert "served" in function.__doc__
