#!/usr/bin/python3
"""Times xfm beside numpy.fft and scipy.fft, run by run in turn, and prints the tables of docs/python.md.

    PYTHONPATH=build/release/python /usr/bin/python3 python/bench/speed.py
"""

import time

import numpy as np
import scipy.fft

import xfm


def shortest(calls, seconds):
    """The shortest processor time of each call. They take turns, so that whatever else the machine does meets all."""
    times = [[] for _ in calls]
    end = time.perf_counter() + seconds
    while time.perf_counter() < end or len(times[0]) < 5:
        for call, taken in zip(calls, times):
            begin = time.thread_time()
            call()
            taken.append(time.thread_time() - begin)
    return [min(taken) for taken in times]


def arrays():
    print("| Array | Transform | Type | xfm | xfm, `out=` | numpy / xfm | scipy / xfm |")
    print("|---|---|---|---|---|---|---|")
    for shape in ((1_000, 64), (100_000, 16)):
        for name, types in (("fft", (np.complex64, np.complex128)), ("rfft", (np.float32, np.float64))):
            for dtype in types:
                x = np.random.default_rng(1).standard_normal(shape).astype(dtype)
                ours, numpys, scipys = (getattr(module, name) for module in (xfm, np.fft, scipy.fft))
                out = ours(x)
                new, kept, numpy, scipy_ = shortest(
                    [lambda: ours(x), lambda: ours(x, out=out), lambda: numpys(x), lambda: scipys(x)], 2)
                print(f"| {shape[0]:,} x {shape[1]} | {name} | {dtype.__name__} | {new * 1e6:.0f} us | {kept * 1e6:.0f} us "
                      f"| {numpy / new:.1f} | {scipy_ / new:.1f} |")


def single_calls():
    print("\n| One array of 64 | xfm | xfm, `out=` | numpy / xfm | scipy / xfm | through the backend |")
    print("|---|---|---|---|---|---|")
    x = np.random.default_rng(1).standard_normal(64).astype(np.complex64)
    out = xfm.fft(x)

    def thousand(transform, **arguments):
        for _ in range(1000):
            transform(x, **arguments)

    def by_backend():
        with scipy.fft.set_backend(xfm.scipy_backend):
            thousand(scipy.fft.fft)

    new, kept, numpy, scipy_, backend = shortest(
        [lambda: thousand(xfm.fft), lambda: thousand(xfm.fft, out=out), lambda: thousand(np.fft.fft),
         lambda: thousand(scipy.fft.fft), by_backend], 4)
    print(f"| fft, complex64 | {new * 1e6:.0f} ns | {kept * 1e6:.0f} ns | {numpy / new:.1f} | {scipy_ / new:.1f} "
          f"| {backend * 1e6:.0f} ns |")


if __name__ == "__main__":
    arrays()
    single_calls()
