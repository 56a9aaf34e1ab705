#!/bin/sh
# Fetches the public-domain Natural Earth outlines that make_maps.py draws from.
# They come as TopoJSON in the npm package "world-atlas"; the version is pinned because a newer
# data set would move coastlines and with them every byte of the committed maps.
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
cache=${NUBIVANE_GEODATA:-$root/.cache/geodata}
package=world-atlas@2.0.2

mkdir -p "$cache"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cd "$scratch"
archive=$(npm pack --silent "$package")
tar -xzf "$archive"
for file in countries-10m.json countries-50m.json land-10m.json land-50m.json; do
    cp "package/$file" "$cache/$file"
done
echo "geodata in $cache"
