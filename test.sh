#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up a Debian 12 machine, builds, and runs every test once: those of the sources under
# AddressSanitizer and UndefinedBehaviorSanitizer, those that work whole programs, pages in browsers
# and packages with the debug build, which is made as it is shipped.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup-debian.sh test
scripts/check-style.sh

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
export UBSAN_OPTIONS=print_stacktrace=1
# Many tests wait for servers and timers, so that two cores have room for three.
export CTEST_PARALLEL_LEVEL=3

# No debugger looks at these builds; a sanitizer's report wants the lines.
configure() {
    cmake --preset "$1" -DNUBIVANE_WERROR=ON -DCMAKE_CXX_FLAGS_DEBUG="$2" "${@:3}" >/dev/null
}
whole_programs='^(desktop/|packaging/|engine/web/browser$|engine/web/responsive$)'
failed=0

# The sources of a folder of src/ as one: some minutes less. The debug build proves that each stands alone.
configure asan -g1 -DNUBIVANE_UNITY=ON
cmake --build --preset asan
ctest --test-dir build/asan --output-on-failure -E "$whole_programs" || failed=1

configure debug -g0
cmake --build --preset debug --target Nubivane nubivane-cli packaging_files
ctest --test-dir build/debug --output-on-failure -R "$whole_programs" || failed=1
exit $failed
