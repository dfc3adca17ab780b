#!/bin/sh
# Builds the preset "benchmark", runs all benchmarks and the same comparison in numpy, and writes
# docs/performance.md. Installs python3-numpy where it is missing (as root, on Debian).
set -eu
cd "$(dirname "$0")/.."

/usr/bin/python3 -c 'import numpy' 2>/dev/null || apt-get install -y --no-install-recommends python3-numpy
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT

# GCC 12 warns of overlapping copies inside std::string at -O3 where there are none; warnings count elsewhere.
cmake --preset benchmark -DVERITANE_WERROR=OFF
cmake --build --preset benchmark --target veritane_benchmarks
build/benchmark/bin/veritane_benchmarks --benchmark_repetitions=15 --benchmark_min_time=0.1 \
  --benchmark_out="$results/benchmarks.json" --benchmark_out_format=json
/usr/bin/python3 benchmarks/numpy_comparison.py > "$results/numpy.json"
compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' build/benchmark/CMakeCache.txt)
/usr/bin/python3 benchmarks/performance_page.py "$results/benchmarks.json" "$results/numpy.json" \
  "$("$compiler" --version | head -n 1)" docs/performance.md
cat docs/performance.md
