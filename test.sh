#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up a Debian 12 machine, builds, and runs every test once: what needs no window under
# AddressSanitizer and UndefinedBehaviorSanitizer, the rest in the debug build.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup-debian.sh test
scripts/check-style.sh

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
export UBSAN_OPTIONS=print_stacktrace=1

# No debugger looks at these builds; a sanitizer's report wants the lines.
configure() {
    cmake --preset "$1" -DNUBIVANE_WERROR=ON -DCMAKE_CXX_FLAGS_DEBUG="$2" >/dev/null
}
with_windows='^(windows/|desktop/|packaging/|engine/web/browser$|engine/web/responsive$)'
failed=0

configure asan -g1
cmake --build --preset asan --target engine_tests
ctest --test-dir build/asan --output-on-failure -j2 -E "$with_windows|_NOT_BUILT" || failed=1

configure debug -g0
cmake --build --preset debug --target Nubivane nubivane-cli packaging_files windows_tests
ctest --test-dir build/debug --output-on-failure -j2 -R "$with_windows" || failed=1
exit $failed
