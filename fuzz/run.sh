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
        fuzz_jpeg_inspection fuzz_gif_reader fuzz_settings_file fuzz_foreign_text fuzz_ftp_replies \
        fuzz_versions_list fuzz_page_guard fuzz_ftp_reply_reader fuzz_ftp_listings \
        fuzz_site_manifest
fi
build=${FUZZ_BUILD:-build/fuzz}
found=$build/found

cmake --preset fuzz -B "$build" >/dev/null
cmake --build "$build" --target fuzz

failed=()
for target in "$@"; do
    seeds=("fuzz/corpus/$target")
    timeout=2
    memory=300
    case $target in
        fuzz_ftp_replies) timeout=60 ;;  # waits for replies that never come
        fuzz_gif_reader) memory=450 ;;   # a map's 100 MB of pixels, held three times
    esac
    options=(-timeout="$timeout" -rss_limit_mb="$memory" -max_total_time="$seconds" -print_final_stats=1)
    case $target in
        fuzz_saved_document) seeds=(fuzz/corpus/fuzz_project_document) ;;
        fuzz_xml_guard) seeds+=(fuzz/corpus/fuzz_project_document) ;;
        fuzz_page_guard) seeds+=(help) ;;
    esac
    case $target in
        fuzz_data_blocks) options+=(-max_len=12000) ;;
        fuzz_help_file) options+=(-max_len=20000) ;;
        fuzz_jpeg_inspection | fuzz_settings_file | fuzz_foreign_text) options+=(-max_len=2000) ;;
        fuzz_gif_reader | fuzz_ftp_replies) options+=(-max_len=10000) ;;
        fuzz_versions_list | fuzz_page_guard) options+=(-max_len=20000) ;;
        fuzz_ftp_reply_reader | fuzz_ftp_listings | fuzz_site_manifest) options+=(-max_len=4096) ;;
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
