#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Formatting of all C++ files against .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
