# Sourced by run.sh, serve.sh and test.sh: installs the missing packages of the given groups.

missing_packages() {
    local group package
    while read -r group package; do
        [[ " $* " == *" $group "* ]] || continue
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
    done < <(grep -v '^#' packages.txt)
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

known_packages() {
    local package
    for package in "$@"; do
        apt-cache show "$package" >/dev/null 2>&1 || return 1
    done
}

# lock_holder FILE: prints who holds the lock that apt-get could not get; fails for any other error
lock_holder() {
    grep -qE 'Could not get lock|locked by another process' "$1" || return 1
    sed -nE 's/.*held by process ([0-9]+) \((.*)\).*/\2, process \1/p' "$1" | head -n 1
}

# apt_get ARGUMENT...: waits while another package manager holds a lock
lock_pause=2
apt_get() {
    local errors holder told=
    errors=$(mktemp)
    until as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -q "$@" 2>"$errors" |
        { grep --line-buffered -v '^Reading package lists' || true; }; do
        if ! holder=$(lock_holder "$errors"); then
            cat "$errors" >&2
            rm -f "$errors"
            return 1
        fi
        [ -n "$told" ] || echo "Waiting for another package manager to finish${holder:+ ($holder)}. Ctrl+C ends the wait." >&2
        told=yes
        sleep "$lock_pause"
    done
    cat "$errors" >&2
    rm -f "$errors"
}

apt_install() {
    apt_get install -y --no-install-recommends "$@"
}

install_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "No apt-get here: packages.txt names what has to be installed." >&2
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing ${missing[*]}"
    known_packages "${missing[@]}" && apt_install "${missing[@]}" && return
    apt_get update
    apt_install "${missing[@]}"
}
