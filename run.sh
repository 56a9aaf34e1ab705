#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Nubivane. With a display, opens the editor on the five-day example; without one, makes of the
# examples what the program can make: a page, pictures, moving GIFs, a film, videos and prints, in out/.
# Works from a fresh clone on Debian 12, as root or with sudo.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup-debian.sh run
# Without the tests: they need packages that running does not.
cmake --preset release -DBUILD_TESTING=OFF >/dev/null
cmake --build --preset release

mkdir -p out
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # On a copy, so that saving does not change the example.
    project=out/europe.nvpf
    [ -f $project ] && [ -f out/europe.nvpx ] || cp examples/europe.nvp? out/
    echo "Opening $project. The pages made lie in build/release/Nubivane."
    exec build/release/Nubivane/Nubivane "$PWD/$project"
fi

# A program folder of its own, so that the page stands alone and can be copied to a server as it is.
rm -rf out/site out/europe out/italy out/mediterranean
cmake --install build/release --prefix "$PWD/out/site" >/dev/null
cli() {
    out/site/nubivane-cli --settings out/settings.ini "$@"
}

echo
echo "The page of examples/europe.nvpf, to be opened in a browser:"
cli page examples/europe.nvpf | grep '\.htm$'

# frames_of PROJECT: how many it has.
frames_of() {
    sed -n '1s/.*<FILE Frames="\([0-9]*\)".*/\1/p' "$1"
}

for project in examples/*.nvpf; do
    name=$(basename "$project" .nvpf)
    frames=$(frames_of "$project")
    mkdir "out/$name"
    echo
    echo "From $project, $frames Frame(s):"
    cli still "$project" all "out/$name/picture-%d.png"
    cli anigif "$project" 1 "out/$name/moving.gif"
    if [ "$frames" -gt 1 ]; then
        cli film "$project" "out/$name/film.gif"
        cli film "$project" "out/$name/film.mp4"
    fi
    cli avi "$project" 1 "out/$name/video.avi"
    cli mp4 "$project" 1 "out/$name/video.mp4"
    cli print "$project" 1 "out/$name/print.pdf"
done
