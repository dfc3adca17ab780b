#!/usr/bin/python3
"""Measures reprocessing through veritane-console: from the click to the chart, for every spectrum of a full
sample file, as somebody at the screen would wait for it.

    reprocess_benchmark.py --console PROGRAM --setup PROGRAM [--samples 50] [--rounds 3]

Lays out a data folder, lets the simulated instrument measure the samples of one product into one file, then
chooses each spectrum in turn and compares it with the Standard. Prints one JSON object; wall times in
milliseconds, and the load average before they were taken.
"""
import argparse
import json
import os
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

from console import DATA, Console

PRODUCT = "POLYSTYRENE"
ALGORITHMS = ("Euclidean", "Fourier", "Lumivar")


def measure_samples(console, count):
    """Files `count` spectra of one product. The first needs a background, which is announced and told done."""
    console.send("app duration 0", "app seed 1", "app sample \"empty\"", "start", "app accessory ATR")
    for number in range(count):
        background = ("answer OK", "answer OK", "app sample \"polystyrene\"") if number == 0 else ()
        console.measure(PRODUCT, f"Sample {number + 1}", (*background, "answer OK"))


def reprocess(console, index, algorithm):
    """Seconds from the click on the file's name to its list, and from the click on "Reprocess" to the chart."""
    console.send("click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 5",
                 "click frmVeritane.cmdStandard", f"file \"{DATA}Standards\\{PRODUCT}.bsp\"",
                 f"choose frmVeritane.cmbAlg \"{algorithm}\"", "click frmVeritane.cmdSamp")
    console.wait_for(event="file-dialog", title=" Select Sample Spectrum.")
    begin = time.perf_counter()
    console.send(f"file \"{DATA}Samples\\{PRODUCT}.bsp\"")
    console.wait_for(event="form", name="frmSelectSpectrum", shown=True)
    list_time = time.perf_counter() - begin
    console.send(f"choose frmSelectSpectrum.lstSpectrum #{index}", "get frmVeritane.lblSampleName")
    console.wait_for(control="frmVeritane.lblSampleName")

    begin = time.perf_counter()
    console.send("click frmVeritane.cmdNow")
    console.wait_for(event="panel", name="fraSpectrum", shown=True)
    chart_time = time.perf_counter() - begin
    console.send("click frmVeritane.cmdBacktoMainMenu")
    return list_time, chart_time


def main():
    parser = argparse.ArgumentParser(description="Measures reprocessing from the click to the chart.")
    parser.add_argument("--console", required=True, help="the program veritane-console")
    parser.add_argument("--setup", required=True, help="the program veritane-setup")
    parser.add_argument("--samples", type=int, default=50)
    parser.add_argument("--rounds", type=int, default=3)
    options = parser.parse_args()

    load = os.getloadavg()[0]
    times = {"list": []} | {algorithm: [] for algorithm in ALGORITHMS}
    with tempfile.TemporaryDirectory(prefix="veritane-") as folder:
        root = Path(folder) / "root"
        root.mkdir()
        subprocess.run([options.setup, "--root", root], check=True, stdout=subprocess.DEVNULL)
        console = Console(options.console, root)
        measure_samples(console, options.samples)
        for _ in range(options.rounds):
            for algorithm in ALGORITHMS:
                for index in range(options.samples):
                    list_time, chart_time = reprocess(console, index, algorithm)
                    times["list"].append(list_time * 1000)
                    times[algorithm].append(chart_time * 1000)
        console.end()

    print(json.dumps({"samples": options.samples, "load": round(load, 2),
                      "median_ms": {name: round(statistics.median(values), 2) for name, values in times.items()},
                      "longest_ms": {name: round(max(values), 2) for name, values in times.items()}}))


if __name__ == "__main__":
    main()
