#!/usr/bin/python3
"""Measures what much work does to the program: thousands of samples in a row with their roll-overs, tables of
thousands of rows, and a long spectrum. Time and memory must not grow with what was done before.

    load_benchmark.py --console PROGRAM --setup PROGRAM [--samples 10000]

Prints one JSON object; wall times in milliseconds, memory in megabytes, and the load average before.
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

from console import Console

PRODUCT = "CAFFEINE"
SPECTRA_PER_FILE = 50
# A tenth of the samples behind the first fills a file.
FEWEST_SAMPLES = 10 * SPECTRA_PER_FILE + 1
LONG_SPECTRUM = 30_000
# Comparisons number their points in 16 bits, from wavenumber 0 on.
FINE_FROM, FINE_SPACING = 360, 0.24


def data_folder(root):
    return root / "drive_c" / "ProgramData" / "Kestrova" / "Veritane"


def lay_out(setup, folder, name):
    root = folder / name
    root.mkdir()
    subprocess.run([setup, "--root", root], check=True, stdout=subprocess.DEVNULL)
    return root


def memory_of(process, line="VmRSS"):
    """Megabytes that the process holds; VmHWM is the most that it ever held."""
    for entry in Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if entry.startswith(line + ":"):
            return int(entry.split()[1]) / 1024
    sys.exit(f"the system tells no {line}")


def timed(action):
    begin = time.perf_counter()
    action()
    return (time.perf_counter() - begin) * 1000


def start(console):
    """From the first line to the operator's menu."""
    console.send("start", "get frmVeritane.cmdSample")
    console.wait_for(control="frmVeritane.cmdSample")


def many_samples(options, folder):
    """A product's samples in a row, measured by an instrument that takes no time."""
    root = lay_out(options.setup, folder, "samples")
    console = Console(options.console, root)
    console.send("app duration 0", "app noise 0", "app sample \"empty\"")
    start(console)
    console.measure(PRODUCT, "First", ("answer OK", "answer OK", f"app sample \"{PRODUCT.lower()}\"", "answer OK"))
    times, memory, files = [], [], []
    for number in range(2, options.samples + 1):
        times.append(timed(lambda number=number: console.measure(PRODUCT, f"Sample {number}")))
        if number % (options.samples // 10) == 0:
            memory.append(memory_of(console.process))
            files.append(len(os.listdir(f"/proc/{console.process.pid}/fd")))
    most = memory_of(console.process, "VmHWM")
    console.end()
    folder_of_samples = data_folder(root) / "Samples"
    spectra = sum(path.read_bytes().count(b"##XYDATA=")
                  for path in folder_of_samples.glob(f"{PRODUCT}*.bsp"))
    records = (folder_of_samples / f"{PRODUCT}.his").read_bytes().count(b"Euclidean")
    if spectra != options.samples or records != options.samples:
        sys.exit(f"{options.samples} samples left {spectra} spectra and {records} records")
    tenth = len(times) // 10
    # Whole files only: a sample takes the longer, the fuller its file is.
    whole = tenth - tenth % SPECTRA_PER_FILE
    return {"samples": options.samples, "full_files": len(list(folder_of_samples.glob(f"{PRODUCT}-*.bsp"))),
            "first_tenth_ms": statistics.mean(times[:whole]), "last_tenth_ms": statistics.mean(times[-whole:]),
            "longest_ms": max(times), "memory_mb": [round(value, 1) for value in memory], "most_mb": round(most, 1),
            "open_files": files}


def many_rows(options, folder):
    """Start and supervisor mode with 10,000 products and 1,000 collect methods."""
    root = lay_out(options.setup, folder, "rows")
    data = data_folder(root)
    products = [f"PRODUCT-{number:05},Pressed disc,Euclidean," for number in range(10_000)]
    (data / "Meth.tbl").write_bytes("\r\n".join([f" {len(products)} ", *products, ""]).encode())
    methods = [f"C:\\Program\\Method {number:04}.clm" for number in range(1_000)]
    (data / "Meths.tbl").write_bytes("\r\n".join([f" {len(methods)} ", *methods, ""]).encode())
    console = Console(options.console, root)
    console.send("app duration 0")
    start_time = timed(lambda: start(console))

    def open_supervisor():
        console.send("click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3",
                     "get frmVeritane.lblCurrentProductID")
        console.wait_for(control="frmVeritane.lblCurrentProductID")

    supervisor_time = timed(open_supervisor)
    memory = memory_of(console.process)
    console.send("click frmVeritane.cmdMainMenu")
    console.end()
    return {"start_ms": start_time, "supervisor_ms": supervisor_time, "memory_mb": round(memory, 1)}


def long_spectrum(options, folder):
    """Samples of 30,000 points from a method that measures so finely."""
    root = lay_out(options.setup, folder, "long")
    standards = data_folder(root) / "Standards"
    to = FINE_FROM + (LONG_SPECTRUM - 0.5) * FINE_SPACING
    (standards / "Fine.clm").write_bytes(
        f"From = {FINE_FROM}\r\nTo = {to}\r\nSpacing = {FINE_SPACING}\r\n".encode())
    data = data_folder(root)
    meths = (data / "Meths.tbl").read_text(encoding="utf-8").splitlines()[1:]
    meths.append("C:\\ProgramData\\Kestrova\\Veritane\\Standards\\Fine.clm")
    (data / "Meths.tbl").write_bytes("\r\n".join([f" {len(meths)} ", *meths, ""]).encode())
    console = Console(options.console, root)
    console.send("app duration 0", "app noise 0", "app sample \"empty\"")
    start(console)
    console.send("click frmVeritane.cmdSupervisor", "tab frmVeritane.SSTab1 3", "click frmVeritane.cmdCollectStdNow",
                 "type frmCollectStd.txtProductID \"FINE\"", "choose frmCollectStd.cmbmth \"Fine\"",
                 "choose frmCollectStd.cmbAlg \"Euclidean\"", "click frmCollectStd.cmdScan", "answer OK", "answer OK",
                 "app sample \"caffeine\"", "answer OK", "answer OK", "click frmVeritane.cmdMainMenu")
    console.wait_for(event="panel", name="fraMainMenu", shown=True)
    times = [timed(lambda number=number: console.measure("FINE", f"Sample {number}")) for number in range(10)]
    memory = memory_of(console.process)
    console.end()
    filed = (data / "Samples" / "FINE.bsp").read_text(encoding="utf-8")
    if filed.count(f"##NPOINTS= {LONG_SPECTRUM}") != len(times):
        sys.exit("the spectra filed are of another length")
    return {"points": LONG_SPECTRUM, "median_ms": statistics.median(times), "longest_ms": max(times),
            "memory_mb": round(memory, 1)}


def main():
    parser = argparse.ArgumentParser(description="Measures what much work does to the program.")
    parser.add_argument("--console", required=True, help="the program veritane-console")
    parser.add_argument("--setup", required=True, help="the program veritane-setup")
    parser.add_argument("--samples", type=int, default=10_000)
    options = parser.parse_args()
    if options.samples < FEWEST_SAMPLES:
        parser.error(f"--samples begins at {FEWEST_SAMPLES}")
    load = os.getloadavg()[0]
    with tempfile.TemporaryDirectory(prefix="veritane-") as name:
        folder = Path(name)
        print(json.dumps({"load": round(load, 2), "long": long_spectrum(options, folder),
                          "rows": many_rows(options, folder), "samples": many_samples(options, folder)}))


if __name__ == "__main__":
    main()
