"""Short, very fast discrete transforms of NumPy arrays.

    fft, ifft       complex DFT                      lengths 2 to 64
    rfft, irfft     real DFT, half spectra           lengths 2 to 64
    hartley         Hartley transform                lengths 2 to 64
    wht             Walsh-Hadamard transform         lengths 2**1 to 2**13
    dct4            DCT-IV                           lengths 2**1 to 2**26, in double precision to 2**25
    layout          conversion between the layouts of half spectra: CCS, Pack and Perm
    scipy_backend   a backend of scipy.fft

Arrays may have any number of dimensions and any strides. Other lengths raise ValueError.
"""

from . import layout, scipy_backend
from ._xfm import (
    DCT4_MAX_LENGTH_32F,
    DCT4_MAX_LENGTH_64F,
    DCT4_MIN_LENGTH,
    DFT_MAX_LENGTH,
    DFT_MIN_LENGTH,
    VERSION_MAJOR,
    VERSION_MINOR,
    WHT_MAX_ORDER,
    WHT_MIN_ORDER,
    dct4,
    fft,
    hartley,
    ifft,
    irfft,
    rfft,
    wht,
)

__version__ = f"{VERSION_MAJOR}.{VERSION_MINOR}"
__all__ = ["fft", "ifft", "rfft", "irfft", "hartley", "wht", "dct4", "layout", "scipy_backend"]
