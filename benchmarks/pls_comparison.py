#!/usr/bin/python3
"""The PLS benchmarks with scikit-learn's PLSRegression, as a yardstick.

The spectra are those of pls_benchmark.cpp. Prints one JSON object: median and best processor times of one
concentration and of a cross-validation in nanoseconds, their results, scikit-learn's version.
"""
import json
import sys
import time

import numpy as np
import sklearn
from sklearn.cross_decomposition import PLSRegression

FACTORS = 10


def made_up_spectra(samples, points):
    """The spectra of pls_benchmark.cpp."""
    i = np.arange(samples, dtype=float)[:, None]
    x = np.arange(points)[None, :] / points
    spectra = np.zeros((samples, points))
    for band in range(1, 13):
        height = 1 + 0.5 * np.sin(i * band)
        centre = band / 13 + 0.002 * np.sin(0.7 * i * band)
        spectra += height * np.exp(-(((x - centre) / 0.02) ** 2))
    return spectra


def made_up_reference(samples):
    """The reference values of pls_benchmark.cpp."""
    i = np.arange(samples, dtype=float)
    return 50 + 10 * np.sin(3 * i) + 5 * np.sin(7 * i) + np.sin(31 * i)


def timed(work, repetitions, loops):
    """Median and best processor time of one run in nanoseconds."""
    times = []
    for _ in range(repetitions):
        begin = time.process_time_ns()
        for _ in range(loops):
            work()
        times.append((time.process_time_ns() - begin) / loops)
    times.sort()
    return {"median_ns": times[len(times) // 2], "best_ns": times[0]}


def press(spectra, reference):
    """PRESS of leaving one out at the full number of factors."""
    total = 0.0
    keep = np.ones(len(reference), dtype=bool)
    for sample in range(len(reference)):
        keep[sample] = False
        model = PLSRegression(n_components=FACTORS, scale=False).fit(spectra[keep], reference[keep])
        predicted = float(np.ravel(model.predict(spectra[sample:sample + 1]))[0])
        total += (predicted - reference[sample]) ** 2
        keep[sample] = True
    return total


def main():
    model = PLSRegression(n_components=FACTORS, scale=False).fit(made_up_spectra(60, 3601), made_up_reference(60))
    sample = made_up_spectra(5, 3601)[4:5]
    spectra, reference = made_up_spectra(60, 401), made_up_reference(60)
    result = {
        "sklearn": sklearn.__version__,
        "concentration": timed(lambda: model.predict(sample), 100, 100),
        "concentration_value": float(np.ravel(model.predict(sample))[0]),
        "leave_one_out": timed(lambda: press(spectra, reference), 10, 1),
        "press": press(spectra, reference),
    }
    json.dump(result, sys.stdout)


if __name__ == "__main__":
    main()
