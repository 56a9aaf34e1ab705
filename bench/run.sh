#!/usr/bin/env bash
# Builds the release programs and runs all benchmarks: bench/run.sh [BUILD_FOLDER]
# Needs libbenchmark-dev, python3-pil, python3-numpy, ffmpeg, gifsicle, libxml2-utils, imagemagick and
# libjpeg-turbo-progs.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/bench}

cmake --preset bench -B "$build" >/dev/null
cmake --build "$build" --target bench

for python in python3 /usr/bin/python3; do
    "$python" -c 'import PIL, numpy' 2>/dev/null && break
done
"$python" bench/whole_program.py "$build" "$build/bench/work"
"$python" bench/animations.py "$build" "$build/bench/animations"
"$build/bench/bench_engine" --benchmark_min_time=0.3
