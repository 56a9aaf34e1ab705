#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the .deb into a fresh Debian 12, and works there as an ordinary user:
# fresh_debian.sh FOLDER_WITH_DEB
#
# The Debian lives in a folder that goes away with it. Its packages come from the network the first
# time and are kept in NUBIVANE_PACKAGE_CACHE (~/.cache/nubivane/debian-packages).
set -euo pipefail
. "$(dirname "$0")/packaging.sh"
deb=$(echo "$1"/*.deb)
need_tools mmdebstrap dpkg-deb
[ -f "$deb" ] || fail "there is no package in $1"
[ "$(id -u)" = 0 ] || unshare -Ur true 2>/dev/null || skip "root, or user namespaces, are needed"

cache=${NUBIVANE_PACKAGE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/nubivane/debian-packages}
mkdir -p "$cache"

# The same package a version later: a map more, another help.
dpkg-deb -R "$deb" "$work/later"
sed -i 's/^Version: .*/&+later/' "$work/later/DEBIAN/control"
cp "$work/later/usr/share/nubivane/Maps/italy.jpg" "$work/later/usr/share/nubivane/Maps/later.jpg"
mkdir -p "$work/later/usr/share/nubivane/Help"
echo "later" >"$work/later/usr/share/nubivane/Help/Nubivane.chm"
dpkg-deb --root-owner-group -Zgzip -z1 -b "$work/later" "$work/later.deb" >/dev/null
cp "$deb" "$work/nubivane.deb"
cp "$root/tests/packaging/in_fresh_debian.sh" "$work/try.sh"

set +e
mmdebstrap --variant=minbase --format=null --quiet \
    --dpkgopt=force-unsafe-io --skip=download/empty --skip=essential/unlink \
    --setup-hook='mkdir -p "$1/var/cache/apt/archives"' \
    --setup-hook="sync-in '$cache' /var/cache/apt/archives" \
    --customize-hook="touch '$work/stands'" \
    --customize-hook="copy-in '$work/nubivane.deb' '$work/later.deb' '$work/try.sh' /mnt" \
    --customize-hook='chroot "$1" bash /mnt/try.sh' \
    --customize-hook="sync-out /var/cache/apt/archives '$cache'" \
    bookworm /dev/null >"$work/log" 2>&1
result=$?
set -e
grep -E '^(ok|FAILED|NO NETWORK)' "$work/log" || true
[ $result = 0 ] && exit 0
tail -n 25 "$work/log" >&2
if [ ! -e "$work/stands" ] || grep -q '^NO NETWORK' "$work/log"; then
    skip "the packages of a fresh Debian cannot be had here"
fi
fail "in a fresh Debian"
