#!/usr/bin/python3
"""Measures how long the program with its window takes from the command to the operator's menu, and what memory it needs.

    start_benchmark.py --program PROGRAM --setup PROGRAM [--starts 15]

Needs a display (tests/window/with_display.sh). The menu is there when its window is shown and the program has done
nothing for a while. The toolkit's fading is off, which goes on for a fifth of a second after that. Prints one JSON object;
wall times in milliseconds, memory in megabytes.
"""
import argparse
import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

# A program that still starts does something within such a pause. So little work as this is a blinking cursor.
PAUSE_S = 0.3
BLINK_NS = 2_000_000
LONGEST_START_S = 30


def work_of(process):
    """Nanoseconds of processor time of the main thread, which alone computes and draws."""
    return int(Path(f"/proc/{process.pid}/schedstat").read_text().split()[0])


def output_of_xwininfo(*words):
    return subprocess.run(["xwininfo", *words], capture_output=True, text=True, check=True).stdout


def is_shown(process):
    found = re.search(r'(0x\w+) "Veritane - Version ', output_of_xwininfo("-root", "-tree"))
    if process.poll() is not None:
        sys.exit(f"the program ended with {process.returncode} instead of starting")
    return found is not None and "IsViewable" in output_of_xwininfo("-id", found[1])


def most_memory(process):
    for line in Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if line.startswith("VmHWM:"):
            return int(line.split()[1]) / 1024
    sys.exit("the system tells no VmHWM")


def start_once(program, root):
    begin = time.perf_counter()
    process = subprocess.Popen([program], env=os.environ | {"VERITANE_HOME": root, "XDG_CONFIG_HOME": root})
    last_work, last_change = 0, begin
    while time.perf_counter() - last_change < PAUSE_S or not is_shown(process):
        if time.perf_counter() - begin > LONGEST_START_S:
            sys.exit("the menu does not come")
        time.sleep(0.002)
        work = work_of(process)
        if work - last_work > BLINK_NS:
            last_work, last_change = work, time.perf_counter()
    memory = most_memory(process)
    process.terminate()
    process.wait()
    return (last_change - begin) * 1000, last_work / 1e6, memory


def main():
    parser = argparse.ArgumentParser(description="Measures the start of the program with its window.")
    parser.add_argument("--program", required=True, help="the program veritane")
    parser.add_argument("--setup", required=True, help="the program veritane-setup")
    parser.add_argument("--starts", type=int, default=15)
    options = parser.parse_args()
    load = os.getloadavg()[0]
    with tempfile.TemporaryDirectory(prefix="veritane-") as root:
        subprocess.run([options.setup, "--root", root, "--mode", "demo"], check=True, stdout=subprocess.DEVNULL)
        Path(root, "gtk-3.0").mkdir()
        Path(root, "gtk-3.0", "settings.ini").write_text("[Settings]\ngtk-enable-animations=0\n", encoding="utf-8")
        starts = [start_once(options.program, root) for _ in range(options.starts)]
    times, work, memory = zip(*starts)
    print(json.dumps({"load": round(load, 2), "starts": options.starts, "median_ms": statistics.median(times),
                      "longest_ms": max(times), "computing_ms": statistics.median(work), "memory_mb": round(max(memory), 1)}))


if __name__ == "__main__":
    main()
