#!/usr/bin/env bash
# Installs what is missing, builds Halvane, lays it out in dist/halvane and starts it. It can be run
# again at any time: profiles, logs, recipes and custom foods stay, the stock foods follow the source.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh
source tools/display.sh

program=dist/halvane/halvane

build() {
    cmake --preset release -DHALVANE_BENCH=OFF -DHALVANE_EXCHANGE=OFF
    cmake --build --preset release
    cmake --install build/release --prefix "$PWD/dist/halvane"
}

trap clean_up EXIT
install_packages build
build
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    install_packages display
    start_display
    manage_windows
    serve_display
fi
"$program"
