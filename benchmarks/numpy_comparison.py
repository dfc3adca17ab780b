#!/usr/bin/python3
"""The Euclidean comparison with preparation in numpy, as a yardstick: what a careful script would cost.

Everything that does not depend on the sample is computed beforehand, and no step allocates. Prints one JSON
object: the median and the best processor time of a comparison in nanoseconds, the match quality, numpy's version.
"""
import json
import sys
import time

import numpy as np

POINTS = 3601
INDEX = np.arange(POINTS, dtype=float)
CENTRED = INDEX - INDEX.mean()
SQUARES = float(CENTRED @ CENTRED)
NULL_REGIONS = [slice(2300 - 400, 2400 - 400 + 1), slice(1800 - 400, 1900 - 400 + 1)]


def made_up_spectrum(shift):
    """The spectrum of made_up_spectrum.h."""
    first_band = np.exp(-(((INDEX - 1500 - shift) / 40) ** 2))
    second_band = 0.5 * np.exp(-(((INDEX - 2500 - shift) / 20) ** 2))
    return 0.1 + 1e-5 * INDEX + first_band + second_band


def prepare(spectrum, line):
    """Baseline, normalisation and null regions, in place; `line` is scratch."""
    np.multiply(CENTRED, float(CENTRED @ spectrum) / SQUARES, out=line)
    line += spectrum.mean()
    spectrum -= line
    least = spectrum.min()
    spectrum -= least
    spectrum /= spectrum.max()
    for region in NULL_REGIONS:
        spectrum[region] = 0


def quality(standard, sample):
    """The match quality in percent, with two decimals."""
    r = float(standard @ sample) / (float(standard @ standard) ** 0.5 * float(sample @ sample) ** 0.5)
    return round(min(max(100 * (1 - abs(1 - r) ** 0.5), 0), 100), 2)


def main():
    line = np.empty(POINTS)
    standard = made_up_spectrum(0)
    prepare(standard, line)
    measured = made_up_spectrum(3)
    # Half a memory page away from its source: see RoomAwayFrom in comparison_benchmark.cpp.
    room = np.empty(POINTS + 512)
    offset = ((measured.ctypes.data - room.ctypes.data) // 8 + 256) % 512
    sample = room[offset:offset + POINTS]

    times = []
    for _ in range(200):
        begin = time.process_time_ns()
        for _ in range(100):
            np.copyto(sample, measured)
            prepare(sample, line)
            result = quality(standard, sample)
        times.append((time.process_time_ns() - begin) / 100)
    times.sort()
    json.dump({"median_ns": times[len(times) // 2], "best_ns": times[0], "quality": result,
               "numpy": np.__version__}, sys.stdout)


if __name__ == "__main__":
    main()
