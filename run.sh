#!/usr/bin/env bash
# Builds Nubivane and makes the forecast page of the example project into out/.
# Works from a fresh clone on Debian 12, as root or with sudo, without a display.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup-debian.sh build
# Without the tests: they need packages that running does not.
cmake --preset release -DBUILD_TESTING=OFF >/dev/null
cmake --build --preset release

# A program folder of its own, so that the page stands alone and can be copied to a server as it is.
rm -rf out/site
mkdir -p out
cp -r build/release/Nubivane out/site
cli=out/site/nubivane-cli

echo "The page of examples/europe.nvpf:"
"$cli" --settings out/settings.ini page examples/europe.nvpf
echo "Open out/site/Forecast.htm in a browser."
