#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing to build on Debian 12; with "run", "test", "bench" or "fuzz" for that too.
# The lists here and the table in README.md say the same.
set -euo pipefail

build_packages=(
    g++ cmake ninja-build ccache mold
    qt6-base-dev qt6-image-formats-plugins libqt6svg6
    libcurl4-openssl-dev libssl-dev qtkeychain-qt6-dev libglib2.0-dev libproxy-dev libgif-dev libimagequant-dev libjpeg-dev libmspack-dev libhunspell-dev rapidjson-dev
    pkg-config libavformat-dev libavcodec-dev libswscale-dev libavutil-dev
    dpkg-dev file fp-utils
    fonts-liberation2 qt6-wayland xdg-utils # to run what was built
)
run_packages=(fonts-liberation2 xdg-utils qt6-wayland)
test_packages=(
    libgtest-dev libgmock-dev
    clang-format clang-tidy qt6-l10n-tools
    fonts-dejavu-extra
    chromium chromium-driver python3 python3-selenium python3-jsonschema
    firefox-esr webkit2gtk-driver default-jre-headless
    xvfb openbox weston xdotool x11-utils xclip libxml2-utils imagemagick binutils bsdutils
    ffmpeg gifsicle poppler-utils libchm-bin
    python3-pyftpdlib python3-openssl python3-cryptography vsftpd openssl
    openssh-client openssh-server rclone
    dbus-bin dbus-daemon gnome-keyring libsecret-1-0
    at-spi2-core python3-pyatspi
    appstream bash-completion desktop-file-utils fish lintian man-db mmdebstrap shared-mime-info zsh
    libcap2 libcrypt1 libpam0g libsodium23 libssl3 # of pure-ftpd and proftpd, below
    libacl1 libhiredis0.14 libmemcachedutil2 libpcre2-8-0 libpcre2-posix3
)

bench_packages=(
    libbenchmark-dev python3-pil python3-numpy libxml2-utils imagemagick libjpeg-turbo-progs
    ffmpeg gifsicle lftp vsftpd fonts-liberation2
)
fuzz_packages=(clang libclang-rt-14-dev)

packages=("${build_packages[@]}")
case "${1:-build}" in
    run) packages+=("${run_packages[@]}") ;;
    test) packages+=("${test_packages[@]}") ;;
    bench) packages+=("${bench_packages[@]}") ;;
    fuzz) packages+=("${fuzz_packages[@]}") ;;
esac

# Another node than Debian's brings its own npm, and the two refuse each other.
if [ "${1:-build}" = test ] && ! command -v npm >/dev/null; then
    packages+=(npm)
fi

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$state" = "install ok installed" ] || missing+=("$package")
done
as_root=()
if [ "$(id -u)" != 0 ]; then
    as_root=(sudo)
fi
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
fi

# Checkers that Debian does not have; the lock file says which, to the byte.
checks=$(dirname "$0")/../tests/engine/web/browser
if [ "${1:-build}" = test ] && ! cmp -s "$checks/package-lock.json" "$checks/node_modules/installed"; then
    echo "Installing: axe-core, lighthouse, vnu-jar"
    npm ci --prefix "$checks" --ignore-scripts --no-audit --no-fund
    cp "$checks/package-lock.json" "$checks/node_modules/installed"
fi

# Debian allows one FTP server on a machine. The tests want others beside vsftpd and start them
# themselves, so their programs are taken out of their packages.
take_programs() { # PACKAGE PATH...
    local package=$1 scratch
    shift
    [ -x "/usr/local/sbin/$(basename "$1")" ] && return
    echo "Unpacking: $package"
    scratch=$(mktemp -d)
    (cd "$scratch" && { apt-get download -q "$package" ||
        { "${as_root[@]}" apt-get update -q && apt-get download -q "$package"; }; })
    dpkg-deb -x "$scratch/$package"_*.deb "$scratch/unpacked"
    "${as_root[@]}" install -m 755 -t /usr/local/sbin "${@/#/$scratch/unpacked/}"
    rm -rf "$scratch"
}
if [ "${1:-build}" = test ]; then
    take_programs pure-ftpd usr/sbin/pure-ftpd usr/bin/pure-pw
    take_programs proftpd-core usr/sbin/proftpd
fi
