#!/usr/bin/env bash
# Installs what is missing, builds a release and starts the program. Without a display it plays the demonstration on a
# virtual one instead.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    install_missing "${packages_run[@]}"
else
    install_missing "${packages_run[@]}" "${packages_demo[@]}"
fi

echo "== build"
[ -f build/release/CMakeCache.txt ] || cmake --preset release -DTAVELO_TESTS=OFF
cmake --build build/release --target tavelo tavelo-dump

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "== start"
    exec build/release/src/tavelo
fi
echo "== demonstration"
exec scripts/demo.py --program build/release/src/tavelo --dump build/release/src/tavelo-dump --output demo
