#!/usr/bin/python3
"""The mean spectrum of a recording longer than memory: python3 long_recording.py [SOUND]

dask.array reads, transforms and adds up a few blocks at a time, one on each core; with dask.distributed the same lines
run on many machines.
"""
import sys

import dask.array as da
import numpy as np
import soundfile

import xfm

music = "/usr/share/games/gamine/sounds/BachJSBrandenburgConcertNo2inFMajorBWV1047mvmt1.ogg"
sound = sys.argv[1] if len(sys.argv) > 1 else music
length, frames_in_block = 64, 16384
window = np.hanning(length).astype("float32")


def read(block_info):
    """The frames of one block, read from the file by the worker that needs them."""
    first, last = block_info[None]["array-location"][0]
    samples, _ = soundfile.read(sound, (last - first) * length, first * length, dtype="float32", always_2d=True)
    return samples[:, 0].reshape(-1, length)


def power(frames):
    return np.abs(xfm.rfft(frames * window)) ** 2


info = soundfile.info(sound)
count = info.frames // length
blocks = tuple(min(frames_in_block, count - first) for first in range(0, count, frames_in_block))
frames = da.map_blocks(read, chunks=(blocks, length), dtype="float32", meta=np.empty((0, 0), "float32"))
spectra = frames.map_blocks(power, chunks=(frames.chunks[0], length // 2 + 1), dtype="float32")
mean = spectra.mean(axis=0).compute()

print(f"{count} frames of {length} samples in {len(blocks)} blocks")
for k in range(0, length // 2 + 1, 4):
    print(f"{k * info.samplerate / length:7.0f} Hz {10 * np.log10(mean[k] + 1e-12):7.1f} dB")
