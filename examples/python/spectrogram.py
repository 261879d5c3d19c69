#!/usr/bin/python3
"""The spectrogram of a recording, as a picture in grey: python3 spectrogram.py [SOUND] [PICTURE]"""
import sys, numpy as np, soundfile, xfm
from PIL import Image

music = "/usr/share/games/gamine/sounds/BachJSBrandenburgConcertNo2inFMajorBWV1047mvmt1.ogg"
sound, picture = (sys.argv[1:] + [music, "spectrogram.png"][len(sys.argv) - 1 :])[:2]
samples, rate = soundfile.read(sound, dtype="float32", always_2d=True)
frames = np.lib.stride_tricks.sliding_window_view(samples[:, 0], 64)[::32]
power = np.abs(xfm.rfft(frames * np.hanning(64).astype("float32"))) ** 2
columns = np.array([part.mean(axis=0) for part in np.array_split(power, min(1200, len(power)))])
level = 10 * np.log10(columns.T[::-1] + 1e-9)
grey = np.uint8(np.clip(255 * (1 + (level - level.max()) / 90), 0, 255))
Image.fromarray(grey).resize((grey.shape[1], 12 * grey.shape[0]), Image.NEAREST).save(picture)
print(f"{len(frames)} frames at {rate} Hz, the loudest band at {power.mean(axis=0).argmax() * rate / 64:.0f} Hz")
