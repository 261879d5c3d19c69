"""The lines of Python in README.md and docs/python.md, and the examples, run as they stand."""

import pathlib
import re
import subprocess
import sys

import numpy as np
import pytest
import soundfile

root = pathlib.Path(__file__).resolve().parents[2]
pages = ("README.md", "docs/python.md")


def snippets():
    for page in pages:
        found = re.findall(r"^```python\n(.*?)^```", (root / page).read_text(encoding="utf-8"), re.M | re.S)
        assert found, page
        for number, lines in enumerate(found, 1):
            yield pytest.param(lines, id=f"{page}, {number}")


@pytest.mark.parametrize("lines", snippets())
def test_snippet(lines):
    exec(lines, {})


@pytest.fixture
def tone(tmp_path):
    path = tmp_path / "tone.wav"
    time = np.arange(200_000) / 8000
    soundfile.write(path, 0.5 * np.sin(2 * np.pi * 1500 * time), 8000)
    return path


def run(example, *arguments):
    program = root / "examples" / "python" / example
    return subprocess.run([sys.executable, program, *map(str, arguments)], check=True, capture_output=True, text=True).stdout


def test_spectrogram(tone, tmp_path):
    assert "at 8000 Hz, the loudest band at 1500 Hz" in run("spectrogram.py", tone, tmp_path / "picture.png")
    assert (tmp_path / "picture.png").read_bytes().startswith(b"\x89PNG")


def test_long_recording(tone):
    lines = run("long_recording.py", tone).splitlines()
    assert lines[0] == "3125 frames of 64 samples in 1 blocks"
    levels = {int(line.split()[0]): float(line.split()[2]) for line in lines[1:]}
    assert max(levels, key=levels.get) == 1500


def test_long_recording_in_blocks(tone, tmp_path):
    whole = run("long_recording.py", tone).splitlines()[1:]
    text = (root / "examples/python/long_recording.py").read_text()
    shorter = tmp_path / "shorter.py"
    shorter.write_text(text.replace("frames_in_block = 64, 16384", "frames_in_block = 64, 1000"))
    lines = run(shorter, tone).splitlines()
    assert lines[0] == "3125 frames of 64 samples in 4 blocks"
    assert lines[1:] == whole
