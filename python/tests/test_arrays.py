"""Arrays of any dimensions, strides and types, lengths by n, and results in arrays of the caller."""

import tracemalloc

import numpy as np
import pytest

import xfm
from support import REALS, SAMPLES, assert_close, complex_of, data, double

functions = pytest.mark.parametrize("name", SAMPLES)
reals = pytest.mark.parametrize("real", REALS)

VIEWS = {
    "c": lambda a: a,
    "fortran": np.asfortranarray,
    "transposed": lambda a: np.ascontiguousarray(a.transpose(2, 0, 1)).transpose(1, 2, 0),
    "reversed": lambda a: np.ascontiguousarray(a[::-1, ::-1, ::-1])[::-1, ::-1, ::-1],
    "every other": lambda a: np.repeat(np.repeat(np.repeat(a, 2, 0), 2, 1), 2, 2)[::2, ::2, ::2],
    "every other row": lambda a: np.repeat(a, 2, 1)[:, ::2],
    "broadcast": lambda a: np.broadcast_to(a[:, :1], a.shape),
    "swapped bytes": lambda a: a.astype(a.dtype.newbyteorder()),
    "unaligned": lambda a: np.frombuffer(b"x" + a.tobytes(), a.dtype, offset=1).reshape(a.shape),
    "in records": lambda a: np.rec.fromarrays([np.zeros(a.shape, "f4"), a], names="pad,a")["a"],
}


def sample(name, shape, real):
    return data(shape, complex_of(real) if SAMPLES[name][2] else real)


def result_type(name, real):
    return complex_of(real) if name in ("fft", "ifft", "rfft") else real


def reference(name, x, **arguments):
    if name == "irfft":  # what numpy reads there, and ours does not, makes no difference
        return np.fft.irfft(double(x), **arguments)
    return SAMPLES[name][1](double(x), **arguments)


@functions
@reals
@pytest.mark.parametrize("view", VIEWS)
@pytest.mark.parametrize("axis", (0, 1, 2, -1, -2))
def test_axes_and_strides(name, view, axis, real):
    shape = [8, 16, 32]
    if name == "irfft":
        shape = [5, 9, 17]
    x = VIEWS[view](sample(name, shape, real))
    before = x.copy()
    assert_close(SAMPLES[name][0](x, axis=axis), reference(name, x, axis=axis), result_type(name, real))
    assert np.array_equal(x, before)


@reals
def test_many_dimensions(real):
    x = data((2, 3, 2, 8, 2, 3), real)[:, ::-1, :, :, :, 1:]
    for axis in (3, -3):
        assert_close(xfm.rfft(x, axis=axis), np.fft.rfft(double(x), axis=axis), complex_of(real))
    y = data((1,) * 30 + (8, 2), complex_of(real))
    assert_close(xfm.fft(y, axis=-2), np.fft.fft(double(y), axis=-2), y.dtype)


@functions
@reals
@pytest.mark.parametrize("count", (2, 3, 7, 8, 9, 40))
def test_short_dimensions_side_by_side(name, count, real):
    x = sample(name, (6, 9 if name == "irfft" else 16, 2 * count), real)[:, :, :count]
    assert_close(SAMPLES[name][0](x, axis=1), reference(name, x, axis=1), result_type(name, real))


@functions
@reals
@pytest.mark.parametrize("n", (8, 16, 32))
@pytest.mark.parametrize("axis", (0, 1))
def test_lengths_by_n(name, n, axis, real):
    x = sample(name, (16, 16), real)
    held = n // 2 + 1 if name == "irfft" else n  # of the input
    padded = np.zeros([held if d == axis else 16 for d in (0, 1)], x.dtype)
    part = tuple(slice(min(held, 16)) if d == axis else slice(None) for d in (0, 1))
    padded[part] = x[part]
    arguments = {"axis": axis} | ({"n": n} if name == "irfft" else {})
    assert_close(SAMPLES[name][0](x, n, axis), reference(name, padded, **arguments), result_type(name, real))


@functions
@reals
@pytest.mark.parametrize("axis", (0, 1, 2))
@pytest.mark.parametrize("view", ("c", "fortran", "reversed", "every other", "unaligned"))
def test_out(name, axis, view, real):
    x = sample(name, [5, 9, 17] if name == "irfft" else [8, 16, 32], real)
    expected = SAMPLES[name][0](x, axis=axis)
    out = VIEWS[view](np.zeros_like(expected, order="C"))
    if not out.flags.writeable:
        buffer = bytearray(out.nbytes + 1)
        out = np.frombuffer(buffer, out.dtype, offset=1).reshape(out.shape)
    assert SAMPLES[name][0](x, axis=axis, out=out) is out
    assert np.array_equal(out, expected)


@pytest.mark.parametrize("name", ("fft", "ifft", "hartley", "dct4"))
@reals
@pytest.mark.parametrize("axis", (0, 1))
def test_in_place_and_overlapping(name, axis, real):
    x = sample(name, (16, 32), real)
    expected = SAMPLES[name][0](x, axis=axis)
    for source, target in ((np.s_[:16], np.s_[:16]), (np.s_[1:17], np.s_[:16]), (np.s_[15::-1], np.s_[:16])):
        memory = np.zeros((17, 32), x.dtype)
        memory[source] = x
        SAMPLES[name][0](memory[source], axis=axis, out=memory[target])
        assert np.array_equal(memory[target], expected)


@reals
@pytest.mark.parametrize("n", (16, 17))
def test_real_in_place(n, real):
    x = data((20, n), real)
    memory = np.zeros((20, 2 * (n // 2 + 1)), real)
    memory[:, :n] = x
    spectra = memory.view(complex_of(real))
    xfm.rfft(memory[:, :n], out=spectra)
    assert np.array_equal(spectra, xfm.rfft(x))
    expected = xfm.irfft(spectra, n)
    xfm.irfft(spectra, n, out=memory[:, :n])
    assert np.array_equal(memory[:, :n], expected)


@pytest.mark.parametrize("dtype, becomes", [(np.float16, np.float32), (np.int16, np.float64), (np.int64, np.float64),
                                            (np.uint8, np.float64), (bool, np.float64)])
def test_other_types(dtype, becomes):
    x = (10 * data((4, 16), float)).astype(dtype)
    assert_close(xfm.rfft(x), np.fft.rfft(double(x)), complex_of(becomes))
    assert_close(xfm.fft(x), np.fft.fft(double(x)), complex_of(becomes))
    assert_close(xfm.hartley(x), np.fft.fft(double(x)).real - np.fft.fft(double(x)).imag, becomes)
    assert_close(xfm.rfft(x.tolist()), np.fft.rfft(double(x)), np.complex128)


def test_empty():
    assert xfm.rfft(np.zeros((0, 16), np.float32)).shape == (0, 9)
    assert xfm.fft(np.zeros((3, 8, 0)), axis=1).shape == (3, 8, 0)


@pytest.mark.parametrize("view", (np.s_[:], np.s_[:, ::-1], np.s_[::2, :, ::2], np.s_[:, 1:5, 3:11]))
@pytest.mark.parametrize("axis", (0, 1, 2))
@pytest.mark.parametrize("name", ("fft", "hartley", "dct4"))
def test_nothing_is_copied(name, view, axis):
    x = sample(name, (32, 16, 64), np.float32)[view]
    x = x[tuple(slice(8) if d == axis else slice(None) for d in range(3))]  # a length that all of them serve
    if x.shape[axis] not in (4, 8):
        pytest.skip("not a length of the DCT-IV")
    out = np.empty_like(x)
    SAMPLES[name][0](x, axis=axis, out=out)
    tracemalloc.start()
    SAMPLES[name][0](x, axis=axis, out=out)
    peak = tracemalloc.get_traced_memory()[1]
    tracemalloc.stop()
    assert peak < 512 < x.nbytes
