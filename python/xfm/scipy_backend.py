"""A backend of scipy.fft: with scipy.fft.set_backend(xfm.scipy_backend): ...

It serves fft, ifft, rfft, irfft, fft2, ifft2, and dct and idct of type 4, where xfm serves their lengths and types.
Everything else, errors included, is left to SciPy. The calling thread computes, whatever `workers` is.
"""

import numpy as np

from . import _xfm

__ua_domain__ = "numpy.scipy.fft"


def __ua_function__(method, args, kwargs):
    served = _served.get(method.__name__)
    if served is None:
        return NotImplemented
    try:
        return served(*args, **kwargs)
    except (TypeError, ValueError):  # SciPy serves it, or says what is wrong
        return NotImplemented


def _check(workers, plan):
    if plan is not None or not (workers is None or workers == -1 or workers >= 1):
        raise ValueError


def _along_axis(transform):
    def served(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, *, plan=None):
        _check(workers, plan)
        return transform(x, n, axis, norm)

    return served


def _along_two_axes(transform):
    def served(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False, workers=None, *, plan=None):
        _check(workers, plan)
        x = np.asarray(x)
        first, second = (axis % x.ndim if -x.ndim <= axis < x.ndim else None for axis in axes)
        lengths = (x.shape[first], x.shape[second]) if s is None else tuple(s)
        if first == second or len(lengths) != 2 or not all(
                _xfm.DFT_MIN_LENGTH <= n <= _xfm.DFT_MAX_LENGTH for n in lengths):
            return NotImplemented
        half_way = transform(x, lengths[1], second, norm)
        in_place = half_way if half_way.shape[first] == lengths[0] else None
        return transform(half_way, lengths[0], first, norm, in_place)

    return served


def _dct4(inverse):
    # SciPy's DCT-IV is twice ours, so its "forward" of 1/(2n) is half of our 2/n: exactly, by a power of two.
    norms = {None: ("backward", 2), "backward": ("backward", 2), "ortho": ("ortho", 1), "forward": ("forward", 0.5)}
    if inverse:
        norms = {None: norms["forward"], "backward": norms["forward"], "ortho": norms["ortho"],
                 "forward": norms["backward"]}

    def served(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, orthogonalize=None):
        _check(workers, None)
        if type != 4:
            return NotImplemented
        if norm not in norms:
            raise ValueError
        norm, factor = norms[norm]
        result = _xfm.dct4(x, n, axis, norm)
        if factor != 1:
            result *= factor
        return result

    return served


_served = {
    "fft": _along_axis(_xfm.fft),
    "ifft": _along_axis(_xfm.ifft),
    "rfft": _along_axis(_xfm.rfft),
    "irfft": _along_axis(_xfm.irfft),
    "fft2": _along_two_axes(_xfm.fft),
    "ifft2": _along_two_axes(_xfm.ifft),
    "dct": _dct4(inverse=False),
    "idct": _dct4(inverse=True),
}
