"""Several threads at once: the same bits, and the interpreter is free while a transform runs."""

import concurrent.futures
import threading
import time

import numpy as np
import pytest

import xfm
from support import data

CALLS = {
    "fft": (xfm.fft, np.complex64, (200, 64)),
    "rfft": (xfm.rfft, np.float32, (200, 60)),
    "wht": (xfm.wht, np.float64, (4, 8192)),  # with a buffer
    "dct4": (xfm.dct4, np.float32, (4, 4096)),  # with a state
    "dct4, strided": (lambda x: xfm.dct4(x, axis=0), np.float64, (256, 8)),
}


@pytest.mark.parametrize("name", CALLS)
def test_same_bits(name):
    transform, dtype, shape = CALLS[name]
    inputs = [data(shape, dtype, seed) for seed in range(40)]
    expected = [transform(x) for x in inputs]
    with concurrent.futures.ThreadPoolExecutor(12) as pool:  # more than there are idle states
        for _ in range(3):
            for result, reference in zip(pool.map(transform, inputs), expected):
                assert np.array_equal(result, reference)


def test_interpreter_is_free():
    x = np.zeros((100_000, 64), np.complex64)
    times = {}

    def work():
        times["begin"] = time.perf_counter()
        for _ in range(3):
            xfm.fft(x, out=x)
        times["end"] = time.perf_counter()

    thread = threading.Thread(target=work)
    ticks = []
    thread.start()
    while thread.is_alive():
        ticks.append(time.perf_counter())
        time.sleep(0.0005)
    length = times["end"] - times["begin"]
    assert any(times["begin"] + 0.1 * length < t < times["begin"] + 0.3 * length for t in ticks)


def test_states_of_many_lengths():
    for _ in range(2):
        for n in [2**k for k in range(1, 15)]:
            for dtype in (np.float32, np.float64):
                x = data(n, dtype)
                assert np.allclose(xfm.dct4(xfm.dct4(x), norm="forward"), x, atol=1e-4)
