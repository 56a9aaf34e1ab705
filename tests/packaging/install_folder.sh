#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs a build into a folder, and works there: install_folder.sh BUILD_FOLDER
set -euo pipefail
. "$(dirname "$0")/packaging.sh"
build=$1
folder="$work/a portable folder"

check "cmake --install" cmake --install "$build" --prefix "$folder"
equal "the program folder's entries" \
    "$(printf '%s\n' CHANGELOG.md Examples Help Maps Media Nubivane README.txt Symbols Web nubivane-cli nubivane-video.so)" \
    "$(ls "$folder" | LC_ALL=C sort)"
for part in Maps Media Symbols; do
    check "$part is the shipped one" diff -r "$root/content/$part" "$folder/$part"
done

# It still works where it has been moved.
mv "$folder" "$work/moved elsewhere"
folder="$work/moved elsewhere"
check "a page is made in the folder" \
    with_own_home "$folder/nubivane-cli" page "$folder/Examples/europe.nvpf"
for file in Forecast.htm Forecast.js Web/Forecast1.jpg Web/Forecast5.jpg; do
    check "$file" test -s "$folder/$file"
done
check "the user's data folder is not touched" test ! -e "$work/home/.local/share/Nubivane"
check "the editor finds what it needs" \
    env QT_QPA_PLATFORM=none ldd -r "$folder/Nubivane"
