from typing import Any, Literal, Optional, SupportsIndex

from numpy import ndarray
from numpy.typing import ArrayLike

from . import layout as layout, scipy_backend as scipy_backend

_Norm = Optional[Literal["backward", "ortho", "forward"]]
_Array = ndarray[Any, Any]

def fft(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
        out: Optional[_Array] = None) -> _Array: ...
def ifft(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
         out: Optional[_Array] = None) -> _Array: ...
def rfft(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
         out: Optional[_Array] = None) -> _Array: ...
def irfft(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
          out: Optional[_Array] = None) -> _Array: ...
def hartley(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
            out: Optional[_Array] = None) -> _Array: ...
def wht(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
        out: Optional[_Array] = None) -> _Array: ...
def dct4(a: ArrayLike, n: Optional[SupportsIndex] = None, axis: SupportsIndex = -1, norm: _Norm = None,
         out: Optional[_Array] = None) -> _Array: ...

DFT_MIN_LENGTH: int
DFT_MAX_LENGTH: int
WHT_MIN_ORDER: int
WHT_MAX_ORDER: int
DCT4_MIN_LENGTH: int
DCT4_MAX_LENGTH_32F: int
DCT4_MAX_LENGTH_64F: int
VERSION_MAJOR: int
VERSION_MINOR: int
__version__: str
