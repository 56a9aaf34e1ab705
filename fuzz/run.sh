#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the fuzz targets and runs each for SECONDS (default 60): fuzz/run.sh [SECONDS] [TARGET ...]
# New inputs are kept in build/fuzz/found/; an input that fails lies there with its target's name in
# front, and the run goes on with the next target. Needs clang with its runtime libraries.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
shift || true
if [ $# -eq 0 ]; then
    set -- fuzz_project_document fuzz_saved_document fuzz_xml_guard fuzz_data_blocks fuzz_help_file \
        fuzz_jpeg_tables
fi
build=${FUZZ_BUILD:-build/fuzz}
found=$build/found

cmake --preset fuzz -B "$build" >/dev/null
cmake --build "$build" --target fuzz

failed=()
for target in "$@"; do
    seeds=("fuzz/corpus/$target")
    options=(-timeout=2 -rss_limit_mb=300 -max_total_time="$seconds" -print_final_stats=1)
    case $target in
        fuzz_saved_document) seeds=(fuzz/corpus/fuzz_project_document) ;;
        fuzz_xml_guard) seeds+=(fuzz/corpus/fuzz_project_document) ;;
    esac
    case $target in
        fuzz_data_blocks) options+=(-max_len=12000) ;;
        fuzz_help_file) options+=(-max_len=20000) ;;
        fuzz_jpeg_tables) options+=(-max_len=2000) ;;
        *) options+=(-max_len=45000 -dict=fuzz/project_document.dict) ;;
    esac
    mkdir -p "$found/$target"
    echo "== $target, $seconds seconds"
    if ! "$build/fuzz/$target" "${options[@]}" -artifact_prefix="$found/$target-" \
        "$found/$target" "${seeds[@]}" >"$found/$target.log" 2>&1; then
        failed+=("$target")
        grep -aE '^(Broken promise|SUMMARY|Test unit|artifact_prefix)' "$found/$target.log" || true
    fi
    grep -aE '^(stat::number_of_executed_units|stat::peak_rss_mb|Done)' "$found/$target.log" || true
done
if [ ${#failed[@]} -gt 0 ]; then
    echo "FAILED: ${failed[*]}; the logs and inputs are in $found"
    exit 1
fi
