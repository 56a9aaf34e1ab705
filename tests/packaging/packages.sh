#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the packages of a build and has them judged: packages.sh BUILD_FOLDER OUTPUT_FOLDER
set -euo pipefail
. "$(dirname "$0")/packaging.sh"
build=$1 output=$2
need_tools cpack dpkg-deb dpkg-shlibdeps lintian appstreamcli desktop-file-validate \
    update-desktop-database update-mime-database man readelf xmllint

rm -rf "$output"
check "cpack" cpack --config "$build/CPackConfig.cmake" -B "$output"
rm -rf "$output/_CPack_Packages"
deb=$(echo "$output"/*.deb)
archive=$(echo "$output"/*.tar.gz)

# The archive holds the portable program folder.
mkdir "$work/archive"
tar -xzf "$archive" -C "$work/archive"
folder=$(echo "$work"/archive/*)
equal "the archive's one folder" "$(basename "$archive" .tar.gz)" "$(basename "$folder")"
cmake --install "$build" --prefix "$work/installed" >/dev/null
equal "the archive holds what cmake --install makes" \
    "$(cd "$work/installed" && find . | sort)" "$(cd "$folder" && find . | sort)"
check "the archive's program makes a page" \
    with_own_home "$folder/nubivane-cli" page "$folder/Examples/italy.nvpf"
check "the page lies in its folder" test -s "$folder/Forecast.htm"

# Debian's own judge, with nothing overridden; it warns of being run as root.
check "lintian" lintian --allow-root --fail-on error,warning "$deb"

tree=$work/tree
dpkg-deb -x "$deb" "$tree"
share=$tree/usr/share
check "the desktop entry" desktop-file-validate "$share"/applications/*.desktop
check "the AppStream data" appstreamcli validate --no-net "$share"/metainfo/*.xml
check "the AppStream data beside what they name" appstreamcli validate-tree --no-net "$tree"
check "the type's description" xmllint --noout "$share"/mime/packages/nubivane.xml
for page in Nubivane nubivane nubivane-cli; do
    man --warnings -l "$share/man/man1/$page.1.gz" >"$work/$page.txt" 2>"$work/warnings"
    equal "man $page" "" "$(cat "$work/warnings")"
done

# What a double click needs.
update-mime-database "$share/mime" 2>/dev/null
update-desktop-database "$share/applications"
check "*.nvpf has its type" \
    grep -qxF '50:application/x-nubivane-project:*.nvpf' "$share/mime/globs2"
check "the type has its program" \
    grep -qx 'application/x-nubivane-project=nubivane.desktop;' "$share/applications/mimeinfo.cache"
check "the program is there" test -x "$tree/usr/bin/$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' \
    "$share"/applications/nubivane.desktop)"
for size in 16 22 24 32 48 64 128 256 512; do
    icon=$share/icons/hicolor/${size}x$size/apps/nubivane.png
    equal "the icon of $size pixels" "$size $size" \
        "$(od -An -j16 -N8 --endian=big -t u4 "$icon" | awk '{print $1, $2}')"
done

# One version everywhere.
version=$(dpkg-deb -f "$deb" Version)
equal "the program's version" "Nubivane $version" "$("$tree/usr/bin/nubivane-cli" --version)"
equal "the change log's version" "nubivane ($version)" \
    "$(gzip -dc "$share/doc/nubivane/changelog.gz" | head -n 1 | cut -d' ' -f1,2)"
equal "the AppStream version" "$version" \
    "$(xmllint --xpath 'string(//release[1]/@version)' "$share"/metainfo/*.xml)"
check "CHANGELOG.md tells of the version" grep -q "^## $version" "$root/CHANGELOG.md"

# What Qt loads by itself stands in no program's list of libraries.
for package in qt6-image-formats-plugins libqt6svg6 qt6-wayland xdg-utils fonts-liberation2 libqt6widgets6 libavformat59; do
    case ", $(dpkg-deb -f "$deb" Depends)," in
        *", $package"[,\ ]*) echo "ok: depends on $package" ;;
        *) fail "does not depend on $package" ;;
    esac
done
for program in Nubivane nubivane-cli; do
    check "$program has no search path of its own" \
        sh -c '! readelf -d "$1" | grep -E "RPATH|RUNPATH"' - "$tree/usr/bin/$program"
done

# Hardened: loaded anywhere, all addresses settled before the program begins and then read-only.
for program in Nubivane nubivane-cli; do
    binary=$tree/usr/bin/$program
    headers=$(readelf -hldW "$binary")
    for trait in 'DYN (Position-Independent' GNU_RELRO 'FLAGS_1.*NOW.*PIE'; do
        check "$program has $trait" grep -q "$trait" <<<"$headers"
    done
    # What a debug build, which is not optimized, cannot have.
    if ! grep -q '^CMAKE_BUILD_TYPE:STRING=Debug' "$build/CMakeCache.txt"; then
        symbols=$(readelf --dyn-syms -W "$binary")
        for guard in __stack_chk_fail '[a-z]_chk@'; do
            check "$program calls $guard" grep -q "$guard" <<<"$symbols"
        done
    fi
done

# Asserts name their source file, but only in debug builds.
builder=("$(cd "$build" && pwd -P)")
grep -q '^CMAKE_BUILD_TYPE:STRING=Debug' "$build/CMakeCache.txt" || builder+=("$root")
for path in "${builder[@]}"; do
    check "nothing names the builder's folder $path" \
        sh -c '! grep -rlaF -e "$1" "$2"' - "$path" "$tree"
done
