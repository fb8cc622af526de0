# Sourced by run.sh: starts a virtual display if there is no other, and the programs that serve it.

helpers=()
notes=$(mktemp -d)
clean_up() {
    [ ${#helpers[@]} -eq 0 ] || kill "${helpers[@]}" 2>/dev/null || true
    wait
    rm -rf "$notes"
}

# wait_for_line FILE PATTERN WHAT: waits until the helper has written the line
wait_for_line() {
    for _ in {1..100}; do
        grep -q "$2" "$1" 2>/dev/null && return
        sleep 0.1
    done
    echo "$3 did not start." >&2
    exit 1
}

start_display() {
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$notes/display" 2>/dev/null &
    helpers+=($!)
    wait_for_line "$notes/display" '[0-9]' "The virtual display"
    export DISPLAY=:$(cat "$notes/display")
}

# Without a window manager the keyboard focus follows the pointer.
manage_windows() {
    openbox --sm-disable --config-file tools/windows.xml \
        --startup "sh -c 'echo ready >$notes/windows'" >/dev/null 2>&1 &
    helpers+=($!)
    wait_for_line "$notes/windows" 'ready' "The window manager"
}

serve_display() {
    x11vnc -display "$DISPLAY" -localhost -autoport "${HALVANE_VNC_PORT:-5900}" -forever -shared \
        -nopw -quiet >"$notes/vnc" 2>/dev/null &
    helpers+=($!)
    wait_for_line "$notes/vnc" '^PORT=' "The VNC server"
    echo "There is no display here, so Halvane's window is served over VNC to this machine alone:"
    echo "point a viewer at 127.0.0.1:$(sed -n 's/^PORT=//p' "$notes/vnc"). Ctrl+C ends it."
}
