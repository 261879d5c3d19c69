"""pyFFTW beside numpy, whose transforms are its own: lengths 1 to 69 and two longer ones, contiguous and not."""

import numpy as np
import pyfftw

PRECISIONS = ((np.complex64, 3e-6), (np.complex128, 1e-14))
FLAGS = ("FFTW_ESTIMATE",)


def difference(result, expected):
    return np.abs(result - expected).max() / np.abs(expected).max()


def cases():
    for n in [*range(1, 70), 100, 128]:
        yield (n,), (0,)
        yield (5, n), (1,)
        yield (n, 7), (0,)
        yield (n, 6), (0, 1)
        yield (3, n, 4), (0, 1, 2)


def check(shape, axes, kind, tolerance, random):
    numbers = random.standard_normal((2, *shape))
    wide = numbers[0] + 1j * numbers[1]
    for direction, numpys in (("FFTW_FORWARD", np.fft.fftn), ("FFTW_BACKWARD", np.fft.ifftn)):
        source, target = pyfftw.empty_aligned(shape, kind), pyfftw.empty_aligned(shape, kind)
        transform = pyfftw.FFTW(source, target, axes=axes, direction=direction, flags=FLAGS)
        source[:] = wide
        assert difference(transform(), numpys(wide, axes=axes)) < tolerance, (shape, axes, kind, direction)

    real = wide.real.astype(np.zeros(1, kind).real.dtype)
    spectrum = pyfftw.interfaces.numpy_fft.rfftn(real, axes=axes, planner_effort=FLAGS[0])
    assert spectrum.dtype == kind
    assert difference(spectrum, np.fft.rfftn(wide.real, axes=axes)) < tolerance, (shape, axes, kind)
    back = pyfftw.interfaces.numpy_fft.irfftn(spectrum, [shape[a] for a in axes], axes, planner_effort=FLAGS[0])
    assert difference(back, real) < tolerance, (shape, axes, kind)


random = np.random.default_rng(1)
for shape, axes in cases():
    for kind, tolerance in PRECISIONS:
        check(shape, axes, kind, tolerance, random)
