#!/usr/bin/env bash
# Installs what is missing, builds Halvane, lays it out in dist/halvane and starts it. It can be run
# again at any time: profiles, logs, recipes and custom foods stay, the stock foods follow the source.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh

program=dist/halvane/halvane

build() {
    cmake --preset release -DHALVANE_BENCH=OFF
    cmake --build --preset release
    cmake --install build/release --prefix "$PWD/dist/halvane"
}

helpers=()
end_helpers() {
    [ ${#helpers[@]} -eq 0 ] || kill "${helpers[@]}" 2>/dev/null || true
}

start_display() {
    local number
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$number" 2>/dev/null &
    helpers+=($!)
    for _ in {1..100}; do
        [ -s "$number" ] && break
        sleep 0.1
    done
    export DISPLAY=:$(cat "$number")
    rm -f "$number"
    [ "$DISPLAY" != : ] || { echo "The virtual display did not start." >&2; exit 1; }
}

serve_display() {
    local port=${HALVANE_VNC_PORT:-5900}
    x11vnc -display "$DISPLAY" -localhost -rfbport "$port" -forever -shared -nopw -quiet \
        >/dev/null 2>&1 &
    helpers+=($!)
    echo "There is no display here. Halvane's window is served over VNC on this machine alone:"
    echo "point a viewer at 127.0.0.1:$port. Press Ctrl+C here to end it."
}

install_packages build
build
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    install_packages display
    trap end_helpers EXIT
    start_display
    serve_display
fi
"$program"
