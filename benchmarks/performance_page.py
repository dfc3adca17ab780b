#!/usr/bin/python3
"""Writes docs/performance.md from the results of the benchmarks, of numpy_comparison.py, of
reprocess_benchmark.py, of pls_comparison.py, of load_benchmark.py, of opening_time and of
start_benchmark.py.

    performance_page.py BENCHMARKS.json NUMPY.json REPROCESS.json PLS.json LOAD.json OPENING.json START.json \
        COMPILER PAGE
"""
import json
import math
import pathlib
import platform
import sys

ROWS = {
    "EuclideanComparisonWithPreparation": "Euclidean comparison with preparation of the sample, 3,601 points",
    "FourierComparisonWithPreparation": "Fourier comparison of two transforms of 3,601 points",
    "LumivarComparison": "Lumivar comparison, 35 bands of 3,601 points",
    "WriteDocumentOf50Spectra": "Document of 50 spectra of 3,601 points as text",
    "ReadDocumentOf50Spectra": "The same document read back",
    "LoadProductTableOf10000Rows": "Product table of 10,000 rows",
    "FindLastOf10000Products": "The last of these products looked up",
    "CollectAgainstBackground": "A collection of 3,601 points computed by the simulated instrument",
    "PlsConcentration": "PLS: one concentration from 3,601 points",
    "PlsPredictionWithAllItems": "PLS: prediction of 3,601 points by 10 factors, and all items through the library",
    "PlsLeaveOneOut": "PLS: leaving out each of 60 samples of 401 points, 1 to 10 factors",
}
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def time_text(nanoseconds):
    """A time with three digits and its unit."""
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def processor():
    """The processor's name as the system gives it."""
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.processor()


def reprocessing_lines(results):
    """The section on reprocessing: what somebody at the screen waits for."""
    lines = [
        "## Reprocessing", "",
        f"Wall time through `veritane-console`, files on disk, for every spectrum of a sample file of "
        f"{results['samples']} spectra of 3,601 points; goal from the click to the chart: below 100 ms. Load average "
        f"before the run: {results['load']}.", "",
        "| | median | longest |", "|---|---:|---:|",
    ]
    for name, longest in results["longest_ms"].items():
        title = "From the file's name to the list of its spectra" if name == "list" else \
            f"From the click to the chart, {name}"
        lines.append(f"| {title} | {results['median_ms'][name]:.3g} ms | {longest:.3g} ms |")
    return lines + [""]


def require_same_pls_results(found, reference):
    """Ends the program when the library and scikit-learn computed different things."""
    expected = {"concentration": reference["concentration_value"], "press": reference["press"]}
    if found.keys() != expected.keys() or any(
            not math.isclose(found[name], value, rel_tol=1e-5) for name, value in expected.items()):
        sys.exit(f"the PLS results disagree: {found} and {expected}")


def pls_lines(times, reference):
    """The section that sets the prediction library beside scikit-learn."""
    lines = [
        "## PLS beside scikit-learn", "",
        f"The same spectra, the same number of factors, one thread; scikit-learn {reference['sklearn']}, "
        "`PLSRegression`, which gives the concentration alone. Both find the same concentration and the same PRESS.", "",
        "| | library (best) | scikit-learn (best) | library's share |", "|---|---:|---:|---:|",
    ]
    for title, name, other in (
            ("One concentration from 3,601 points, 10 factors", "PlsConcentration", "concentration"),
            ("Leaving one out, 60 × 401, 10 factors", "PlsLeaveOneOut", "leave_one_out")):
        ours, theirs = min(times[name]), reference[other]["best_ns"]
        lines.append(f"| {title} | {time_text(ours)} | {time_text(theirs)} | {ours / theirs:.3f} |")
    return lines + [""]


def load_lines(results):
    """The section on much work: time and memory must not grow with what was done before."""
    samples, rows, fine = results["samples"], results["rows"], results["long"]
    return [
        "## Much work", "",
        f"Wall time through `veritane-console`, files on disk, an instrument that takes no time. Load average before the "
        f"run: {results['load']}.", "",
        "| | |", "|---|---:|",
        f"| {samples['samples']:,} samples of one product in a row: full files moved aside | {samples['full_files']} |",
        f"| A sample, mean of the first tenth | {samples['first_tenth_ms']:.3g} ms |",
        f"| A sample, mean of the last tenth | {samples['last_tenth_ms']:.3g} ms |",
        f"| The longest of all | {samples['longest_ms']:.3g} ms |",
        f"| Memory after each tenth | {', '.join(f'{value:.0f}' for value in samples['memory_mb'])} MB |",
        f"| The most memory at any moment | {samples['most_mb']:.0f} MB |",
        f"| Open files after each tenth, at most | {max(samples['open_files'])} |",
        f"| Start with 10,000 products and 1,000 collect methods | {rows['start_ms']:.3g} ms |",
        f"| Supervisor mode up to the first product of these | {rows['supervisor_ms']:.3g} ms |",
        f"| Memory with them | {rows['memory_mb']:.0f} MB |",
        f"| A sample of {fine['points']:,} points, median of ten in one file | {fine['median_ms']:.3g} ms |", "",
    ]


def start_lines(results):
    """The section on the start of the program with its window."""
    return [
        "## Start", "",
        f"Wall time from the command to the operator's menu, drawn and waiting, of {results['starts']} starts in "
        f"demonstration mode; goals: below 0.3 s, and below 80 MB. Load average before the run: {results['load']}.", "",
        "| | |", "|---|---:|",
        f"| Start, median | {results['median_ms']:.3g} ms |",
        f"| Start, longest | {results['longest_ms']:.3g} ms |",
        f"| Of it computing | {results['computing_ms']:.3g} ms |",
        f"| The most memory | {results['memory_mb']:.0f} MB |", "",
    ]


def opening_lines(results):
    """The section on a long product table in the window."""
    lines = [
        f"## {results['products']:,} products in the window", "",
        "Wall time from the press of **Supervisor Mode** to the drawn grid, and from one current row to another one a "
        "hundred rows on; goal for the opening: below a second.", "",
        "| | median | longest |", "|---|---:|---:|",
    ]
    for name, title in (("opening", "Opening supervisor mode at the products"),
                        ("hundred_rows_on", "Going a hundred rows on")):
        lines.append(f"| {title} | {results[name]['median_ms']:.3g} ms | {results[name]['longest_ms']:.3g} ms |")
    return lines + [""]


def main():
    benchmarks = json.loads(pathlib.Path(sys.argv[1]).read_text())
    numpy = json.loads(pathlib.Path(sys.argv[2]).read_text())
    reprocess = json.loads(pathlib.Path(sys.argv[3]).read_text())
    pls = json.loads(pathlib.Path(sys.argv[4]).read_text())
    load = json.loads(pathlib.Path(sys.argv[5]).read_text())
    opening = json.loads(pathlib.Path(sys.argv[6]).read_text())
    start = json.loads(pathlib.Path(sys.argv[7]).read_text())
    compiler, page = sys.argv[8], pathlib.Path(sys.argv[9])

    times, rates, qualities, pls_results = {}, {}, set(), {}
    for run in benchmarks["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"{run['run_name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            times.setdefault(run["run_name"], []).append(run["cpu_time"] * NANOSECONDS[run["time_unit"]])
            if "bytes_per_second" in run:
                rates.setdefault(run["run_name"], []).append(run["bytes_per_second"] / 1e6)
            if "quality" in run:
                qualities.add(round(run["quality"], 2))
            for counter in ("concentration", "press"):
                if counter in run:
                    pls_results[counter] = run[counter]
    if qualities != {numpy["quality"]}:
        sys.exit(f"the comparisons disagree: {qualities} and {numpy['quality']}")
    require_same_pls_results(pls_results, pls)
    if times.keys() != ROWS.keys():
        sys.exit(f"benchmarks and page disagree: {sorted(times.keys() ^ ROWS.keys())}")

    context = benchmarks["context"]
    lines = [
        "# Performance", "",
        "Written by `benchmarks/run_benchmarks.sh`; run it again to renew the figures.", "",
        f"- Machine: {processor()}, {context['num_cpus']} processors, {platform.system()} {platform.machine()}",
        f"- Compiler: {compiler}, preset \"benchmark\" (`-O3`, strict floating-point arithmetic); every figure here, "
        "the start and reprocessing too, is of that build, while what people use is built with `-O2`",
        f"- Date: {context['date'][:10]}; load average at the start: {context['load_avg'][0]:.2f}", "",
        "| | median | best | median rate |", "|---|---:|---:|---:|",
    ]
    for name, title in ROWS.items():
        runs = sorted(times[name])
        rate = sorted(rates.get(name, []))
        rate_text = f"{rate[len(rate) // 2]:.0f} MB/s" if rate else ""
        lines.append(f"| {title} | {time_text(runs[len(runs) // 2])} | {time_text(runs[0])} | {rate_text} |")
    lines.append(f"| The same Euclidean comparison in numpy {numpy['numpy']} | {time_text(numpy['median_ns'])} | "
                 f"{time_text(numpy['best_ns'])} | |")
    euclidean = sorted(times["EuclideanComparisonWithPreparation"])
    lines += [
        "",
        f"Both Euclidean comparisons copy the sample, fit and subtract its baseline, normalise it, apply two null "
        f"regions and correlate it with the Standard; both find {numpy['quality']} %. The program takes "
        f"{euclidean[0] / numpy['best_ns']:.2f} of numpy's time (best runs).", "",
        "Times are processor time over repetitions of one run each; documents and tables are in memory.", "",
    ] + pls_lines(times, pls) + reprocessing_lines(reprocess) + load_lines(load) + opening_lines(opening) + \
        start_lines(start)
    page.write_text("\n".join(lines), encoding="utf-8")


if __name__ == "__main__":
    main()
