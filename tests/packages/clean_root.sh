#!/usr/bin/env bash
# clean_root.sh PACKAGES_FOLDER: installs both packages in a Debian of their own, starts them, upgrades them from a
# version before, and removes them. Needs root, mmdebstrap and the package archive of this machine; takes minutes.
set -euo pipefail
# What is started and mounted here ends with the script.
[ -n "${HALVANE_APART:-}" ] || HALVANE_APART=yes exec unshare --mount --pid --fork --kill-child "$0" "$@"
packages=$(cd "$1" && pwd)
work=$(mktemp -d)
root=$work/root
trap 'umount "$root/proc" 2>/dev/null; rm -rf --one-file-system "$work"' EXIT

say() { echo "passed: $1"; }

inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

as() {
    local person=$1
    shift
    inside HOME="/home/$person" runuser -u "$person" -- "$@"
}

archive() {
    find /etc/apt/sources.list.d /etc/apt/sources.list -name '*.list' -o -name '*.sources' 2>/dev/null
}

# The new system reaches the archive as this machine does.
make_root() {
    apt-config dump --no-empty Acquire >"$work/acquire.conf"
    # shellcheck disable=SC2046
    mmdebstrap --quiet --variant=apt --skip=cleanup/apt --include=systemd,xvfb,xauth --aptopt="$work/acquire.conf" \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root" $(archive)
    cp /etc/resolv.conf "$root/etc/"
    mount -t proc proc "$root/proc"
    inside useradd -m anna
    inside useradd -m berta
    mkdir "$root/packages"
    cp "$packages"/halvane_*.deb "$root/packages/halvane.deb"
    cp "$packages"/halvane-exchange_*.deb "$root/packages/halvane-exchange.deb"
}

# The same packages as a version before them: with a lower number, and another name of one stock food.
make_before() {
    local name
    for name in halvane halvane-exchange; do
        dpkg-deb -R "$root/packages/$name.deb" "$work/$name"
        sed -i 's/^Version: .*/Version: 0.9.0/' "$work/$name/DEBIAN/control"
        if [ "$name" = halvane ]; then
            sed -i 's/Butter, salted/Butter of before/' "$work/halvane/usr/share/halvane/foods.tsv"
            echo before >"$work/halvane/usr/share/halvane/delivery.id"
        fi
        rm "$work/$name/DEBIAN/md5sums"
        dpkg-deb --root-owner-group -b "$work/$name" "$root/packages/$name-before.deb" >/dev/null
    done
}

install_all() {
    inside apt-get -q install -y --no-install-recommends -o Dpkg::Options::=--force-confold "$@" >"$work/apt" 2>&1 ||
        { cat "$work/apt"; return 1; }
}

# The start has passed the splash when it has written the number of the tip.
window_starts() {
    local person=$1 settings=$root/home/$1/.config/Brindlewick/HALVANE.ini program
    as "$person" sh -c 'mkdir -p ~/.config/Brindlewick && printf "[General]\nEULA=YES\n" \
        >~/.config/Brindlewick/HALVANE.ini'
    as "$person" xvfb-run -a sh -c 'echo $$ >~/process; exec halvane' &
    program=$!
    until grep -qs TIPNUM "$settings"; do
        kill -0 "$program" || return 1
        sleep 0.2
    done
    kill "$(cat "$root/home/$person/process")"
    wait "$program" || true
}

answer() {
    sqlite3 "$root/home/$1/.local/share/halvane/records/$2" "$3"
}

butter() {
    answer "$1" foods.mdb 'SELECT FoodName FROM FOODS WHERE ID = 16096'
}

exchange_starts_and_ends() {
    local log=$work/log server
    as halvane-exchange sh -c 'echo $$ >/var/lib/halvane-exchange/process
        exec halvane-exchange --config /etc/halvane-exchange.conf --port 0' >"$log" 2>&1 &
    server=$!
    until grep -q '"event":"started"' "$log"; do
        kill -0 "$server" || { cat "$log"; return 1; }
        sleep 0.2
    done
    kill "$(cat "$root/var/lib/halvane-exchange/process")"
    wait "$server"
    grep -q '"event":"ended"' "$log"
    as halvane-exchange halvane-exchange --config /etc/halvane-exchange.conf --reported >/dev/null
}

make_root
make_before
say "a clean system is made"

install_all /packages/halvane-before.deb /packages/halvane-exchange-before.deb
say "the version before is installed"
window_starts anna
[ "$(butter anna)" = "Butter of before" ]
answer anna users.mdb "INSERT INTO profiles (UserName) VALUES ('Anna')"
answer anna foods.mdb "INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'My soup')"
as anna halvane-data table profile | grep Anna >/dev/null
say "it starts, and lays out a person's records"
exchange_starts_and_ends
echo 'workers = 4' >>"$root/etc/halvane-exchange.conf"
say "the exchange starts and ends under its own account"

install_all /packages/halvane.deb /packages/halvane-exchange.deb
window_starts anna
[ "$(butter anna)" = "Butter, salted" ]
[ "$(answer anna foods.mdb 'SELECT FoodName FROM FOODS WHERE ID = 23509')" = "My soup" ]
[ "$(answer anna users.mdb 'SELECT UserName FROM profiles')" = Anna ]
say "an upgrade updates the stock foods and keeps everything else"
window_starts berta
[ "$(answer berta users.mdb 'SELECT COUNT(*) FROM profiles')" = 0 ]
[ "$(inside stat -c '%U %a' /home/berta/.local/share/halvane/records)" = "berta 700" ]
say "another person has records of their own"
grep -q 'workers = 4' "$root/etc/halvane-exchange.conf"
exchange_starts_and_ends
say "the upgraded exchange keeps its settings"

inside apt-get -qq remove -y halvane halvane-exchange >/dev/null 2>&1
[ -z "$(inside find /usr -name '*halvane*' -print)" ]
[ "$(answer anna users.mdb 'SELECT UserName FROM profiles')" = Anna ]
[ -f "$root/etc/halvane-exchange.conf" ] && [ -f "$root/var/lib/halvane-exchange/exchange.db" ]
say "a removal takes the programs, and leaves records, settings and recipes"
inside apt-get -qq purge -y halvane-exchange >/dev/null 2>&1
[ -z "$(inside find /etc /usr /var/lib -name '*halvane*' -not -path '/var/lib/apt/*' -print)" ]
say "a purge leaves nothing of the exchange"
