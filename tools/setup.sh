# Sourced by run.sh, serve.sh and test.sh: installs the packages of the given groups that are not there yet.

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

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@"
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
    as_root apt-get update -q
    apt_install "${missing[@]}"
}
