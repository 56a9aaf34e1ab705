#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# clang-tidy over the sources given, or over all of src/. It cannot read g++'s precompiled headers,
# so it has a preset without them.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset tidy >/dev/null
if [ $# -eq 0 ]; then
    mapfile -t files < <(git ls-files 'src/*.cpp')
    set -- "${files[@]}"
fi
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet 2>&1 |
    grep -v 'warnings generated' || [ "${PIPESTATUS[1]}" -eq 0 ]
