#!/bin/sh
# Builds the preset "benchmark", runs all benchmarks, the same comparison in numpy, PLS in scikit-learn, reprocessing and
# ten thousand samples through the console, the window, and writes docs/performance.md. Run it on a machine that does nothing else.
set -eu
cd "$(dirname "$0")/.."

packaging/install_dependencies build test check
packaging/build benchmark
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT

build/benchmark/bin/veritane_benchmarks --benchmark_repetitions=15 --benchmark_min_time=0.1 \
  --benchmark_out="$results/benchmarks.json" --benchmark_out_format=json
/usr/bin/python3 benchmarks/numpy_comparison.py > "$results/numpy.json"
/usr/bin/python3 benchmarks/reprocess_benchmark.py --console build/benchmark/bin/veritane-console \
  --setup build/benchmark/bin/veritane-setup > "$results/reprocess.json"
/usr/bin/python3 benchmarks/load_benchmark.py --console build/benchmark/bin/veritane-console \
  --setup build/benchmark/bin/veritane-setup > "$results/load.json"
mkdir "$results/root"
tests/window/with_display.sh build/benchmark/bin/opening_time "$results/root" > "$results/opening.json"
tests/window/with_display.sh /usr/bin/python3 benchmarks/start_benchmark.py --program build/benchmark/bin/veritane \
  --setup build/benchmark/bin/veritane-setup > "$results/start.json"
# One thread, as the library has.
OPENBLAS_NUM_THREADS=1 OMP_NUM_THREADS=1 /usr/bin/python3 benchmarks/pls_comparison.py > "$results/pls.json"
compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' build/benchmark/CMakeCache.txt)
/usr/bin/python3 benchmarks/performance_page.py "$results/benchmarks.json" "$results/numpy.json" "$results/reprocess.json" \
  "$results/pls.json" "$results/load.json" "$results/opening.json" "$results/start.json" "$("$compiler" --version | head -n 1)" docs/performance.md
cat docs/performance.md
