#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the release programs and runs all benchmarks: bench/run.sh [BUILD_FOLDER]
# Needs what setup-debian.sh installs for "bench".
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/bench}

cmake --preset bench -B "$build" >/dev/null
cmake --build "$build" --target bench

for python in python3 /usr/bin/python3; do
    "$python" -c 'import PIL, numpy' 2>/dev/null && break
done
"$python" bench/whole_program.py "$build" "$build/bench/work"
"$python" bench/uploads.py "$build"
"$python" bench/animations.py "$build" "$build/bench/animations"
"$build/bench/bench_engine" --benchmark_min_time=0.3
"$build/bench/bench_editor" "$build/Nubivane"
"$build/bench/bench_canvas" "$build/Nubivane"
"$build/bench/bench_recovery" --benchmark_min_time=0.3
"$python" bench/editor_process.py "$build" "$build/bench/editor"
