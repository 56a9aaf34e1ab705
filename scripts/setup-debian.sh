#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing to build on Debian 12; with "test", "bench" or "fuzz" for that too.
# The lists here and the table in README.md say the same.
set -euo pipefail

build_packages=(
    g++ cmake ninja-build ccache mold
    qt6-base-dev qt6-image-formats-plugins libqt6svg6
    libcurl4-openssl-dev libgif-dev libimagequant-dev libjpeg-dev rapidjson-dev
    pkg-config libavformat-dev libavcodec-dev libswscale-dev libavutil-dev
    dpkg-dev file fp-utils
)
test_packages=(
    libgtest-dev libgmock-dev
    clang-format clang-tidy
    fonts-liberation2
    chromium chromium-driver python3 python3-selenium
    xvfb xdotool xclip libxml2-utils imagemagick binutils bsdutils
    ffmpeg gifsicle poppler-utils libchm-bin
    python3-pyftpdlib python3-openssl vsftpd openssl
    appstream bash-completion desktop-file-utils lintian man-db mmdebstrap shared-mime-info
    libcap2 libcrypt1 libpam0g libsodium23 libssl3 # of pure-ftpd, below
)

bench_packages=(
    libbenchmark-dev python3-pil python3-numpy libxml2-utils imagemagick libjpeg-turbo-progs
    ffmpeg gifsicle curl lftp python3-pyftpdlib fonts-liberation2
)
fuzz_packages=(clang libclang-rt-14-dev)

packages=("${build_packages[@]}")
case "${1:-build}" in
    test) packages+=("${test_packages[@]}") ;;
    bench) packages+=("${bench_packages[@]}") ;;
    fuzz) packages+=("${fuzz_packages[@]}") ;;
esac

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

# Debian allows one FTP server on a machine. The tests want another beside vsftpd and start it
# themselves, so its two programs are taken out of their package.
if [ "${1:-build}" = test ] && ! [ -x /usr/local/sbin/pure-ftpd ]; then
    echo "Unpacking: pure-ftpd"
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    (cd "$scratch" && { apt-get download -q pure-ftpd ||
        { "${as_root[@]}" apt-get update -q && apt-get download -q pure-ftpd; }; })
    dpkg-deb -x "$scratch"/pure-ftpd_*.deb "$scratch/unpacked"
    "${as_root[@]}" install -m 755 -t /usr/local/sbin "$scratch/unpacked/usr/sbin/pure-ftpd" \
        "$scratch/unpacked/usr/bin/pure-pw"
fi
