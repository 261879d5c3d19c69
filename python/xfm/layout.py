"""The three layouts of a half spectrum, the bins X[0] to X[N/2] of N real samples.

    "ccs"    an array of N//2 + 1 complex bins: what rfft returns and irfft takes
    "pack"   N real numbers: Re X[0], Re X[1], Im X[1], Re X[2], Im X[2], ..., for even N Re X[N/2] at the end
    "perm"   for even N Re X[0], Re X[N/2], Re X[1], Im X[1], ...; for odd N as "pack"

The flat form of CCS, 2*(N//2 + 1) real numbers, is the same memory: spectrum.view(float), flat.view(complex).
"""

import numpy as np

__all__ = ["convert"]


def convert(a, source, target, n=None, axis=-1):
    """The half spectra along an axis, converted from one layout to another. The result is a new array.

    n     number of samples; only "ccs" needs it, and takes it to be even, 2*(bins - 1), unless it is given
    """
    for name in (source, target):
        if name not in ("ccs", "pack", "perm"):
            raise ValueError(f'the layout is {name!r}, not "ccs", "pack" or "perm"')
    spectra = np.moveaxis(np.asarray(a), axis, -1)
    if np.iscomplexobj(spectra) != (source == "ccs"):
        raise TypeError(f'"{source}" holds {"complex" if source == "ccs" else "real"} numbers, not {spectra.dtype}')
    held = spectra.shape[-1]
    if n is None:
        n = 2 * (held - 1) if source == "ccs" else held
    if n < 1 or held != (n // 2 + 1 if source == "ccs" else n):
        raise ValueError(f'{held} numbers are not the half spectrum of {n} samples in the layout "{source}"')

    packed = np.ascontiguousarray(_to_pack[source](spectra, n))
    return np.moveaxis(_from_pack[target](packed, n), -1, axis)


def _pack_of_ccs(spectra, n):
    flat = np.ascontiguousarray(spectra).view(spectra.real.dtype)
    return np.concatenate([flat[..., :1], flat[..., 2 : n + 1]], axis=-1)


def _ccs_of_pack(packed, n):
    flat = np.zeros(packed.shape[:-1] + (2 * (n // 2 + 1),), np.result_type(packed, np.float32))
    flat[..., 0] = packed[..., 0]
    flat[..., 2 : n + 1] = packed[..., 1:]
    return flat.view(np.result_type(flat, np.complex64))


def _pack_of_perm(spectra, n):
    if n % 2:
        return spectra.copy()
    return np.concatenate([spectra[..., :1], spectra[..., 2:], spectra[..., 1:2]], axis=-1)


def _perm_of_pack(packed, n):
    if n % 2:
        return packed.copy()
    return np.concatenate([packed[..., :1], packed[..., -1:], packed[..., 1:-1]], axis=-1)


_to_pack = {"ccs": _pack_of_ccs, "pack": lambda spectra, n: spectra.copy(), "perm": _pack_of_perm}
_from_pack = {"ccs": _ccs_of_pack, "pack": lambda packed, n: packed, "perm": _perm_of_pack}
