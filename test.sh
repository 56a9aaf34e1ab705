#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up a Debian 12 machine, builds, and runs every test, the engine's
# also under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup-debian.sh test
scripts/check-style.sh

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
export UBSAN_OPTIONS=print_stacktrace=1

cmake --preset debug -DNUBIVANE_WERROR=ON >/dev/null
cmake --build --preset debug

# Under the sanitizers the engine's tests; the windows' own run in the debug build.
cmake --preset asan -DNUBIVANE_WERROR=ON >/dev/null
cmake --build --preset asan --target engine_tests
ctest --test-dir build/asan --output-on-failure -j2 -E '^(engine/web/browser|engine/web/responsive|desktop/|windows/|packaging/)|_NOT_BUILT'

ctest --test-dir build/debug --output-on-failure -j2
