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
import sys
import tempfile
import time
from pathlib import Path

DATA = "C:\\ProgramData\\Kestrova\\Veritane\\"
PRODUCT = "POLYSTYRENE"
ALGORITHMS = ("Euclidean", "Fourier", "Lumivar")


class Console:
    """The program, one line at a time."""

    def __init__(self, program, root):
        self.process = subprocess.Popen([program, "--root", root], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        text=True, encoding="utf-8", bufsize=1)

    def send(self, *lines):
        for line in lines:
            self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def wait_for(self, **wanted):
        """Reads events up to the one with these members."""
        for line in self.process.stdout:
            event = json.loads(line)
            if event.get("event") in ("error", "refused", "exit"):
                sys.exit(f"waiting for {wanted}: {line}")
            if wanted.items() <= event.items():
                return
        sys.exit(f"the program ended before {wanted}")


def measure_samples(console, count):
    """Files `count` spectra of one product. The first needs a background, which is announced and told done."""
    console.send("app duration 0", "app seed 1", "app sample \"empty\"", "start", "app accessory ATR")
    for number in range(count):
        console.send("click frmVeritane.cmdSample", f"choose frmSamp.cmbStandards \"{PRODUCT}\"",
                     f"type frmSamp.txtSampName \"Sample {number + 1}\"", "type frmSamp.txtOperatorName \"Ann\"",
                     "click frmSamp.cmdProductIDOkay")
        if number == 0:
            console.send("answer OK", "answer OK", "app sample \"polystyrene\"")
        console.send("answer OK")
        console.wait_for(event="panel", name="fraSpectrum", shown=True)
        console.send("click frmVeritane.cmdBacktoMainMenu")


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
        console.send("click frmVeritane.cmdExit")
        console.process.stdin.close()
        console.process.stdout.read()
        if console.process.wait() != 0:
            sys.exit(f"the program ended with {console.process.returncode}")

    print(json.dumps({"samples": options.samples, "load": round(load, 2),
                      "median_ms": {name: round(statistics.median(values), 2) for name, values in times.items()},
                      "longest_ms": {name: round(max(values), 2) for name, values in times.items()}}))


if __name__ == "__main__":
    main()
