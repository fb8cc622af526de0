#!/usr/bin/env bash
# packages.sh BUILD_FOLDER SOURCE_FOLDER: makes both packages, checks them and starts what is in them.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# check NAME COMMAND...: runs a check, and shows what it says if it fails
check() {
    local name=$1 code
    shift
    set +e
    (set -e; "$@") >"$work/said" 2>&1
    code=$?
    set -e
    if [ "$code" -eq 0 ]; then
        echo "passed: $name"
    else
        echo "FAILED: $name"
        cat "$work/said"
        failures=$((failures + 1))
    fi
}

make_packages() {
    (cd "$build" && cpack --config CPackConfig.cmake -B "$work/made")
    for name in halvane halvane-exchange; do
        mv "$work/made/${name}_"*.deb "$work/$name.deb"
        dpkg-deb -x "$work/$name.deb" "$work/$name"
    done
}

no_lintian_errors() {
    lintian --fail-on error --tag-display-limit 0 "$work/halvane.deb" "$work/halvane-exchange.deb"
}

desktop_entry_is_valid() {
    local said
    said=$(desktop-file-validate "$work/halvane/usr/share/applications/halvane.desktop") && [ -z "$said" ]
}

appstream_data_is_valid() {
    appstreamcli validate --no-net "$work/halvane/usr/share/metainfo/halvane.metainfo.xml"
}

# holds PACKAGE: exactly the files that are listed, with their rights; all of the help is one line
holds() {
    dpkg-deb -c "$work/$1.deb" | awk '!/^d/ { print $1, $2, substr($6, 2) }' | sed 's|/help/.*|/help/*|' |
        LC_ALL=C sort -u -k3 |
        diff "$here/$1.contents" -
}

folders_are_readable_for_all() {
    [ -z "$(find "$work/halvane" "$work/halvane-exchange" -mindepth 1 -type d ! -perm 755)" ]
}

# The dependencies come from the libraries that the programs load.
depends_on() {
    local wanted depends
    depends=$(dpkg-deb -f "$work/$1.deb" Depends)
    shift
    for wanted in "$@"; do
        [[ "$depends" == *"$wanted"* ]] || { echo "no $wanted in: $depends"; return 1; }
    done
}

version_is_that_of_the_changelog() {
    local package version
    for package in halvane halvane-exchange; do
        zcat "$work/$package/usr/share/doc/$package/changelog.gz" >"$work/changelog"
        version=$(dpkg-parsechangelog -l "$work/changelog" -S Version)
        [ "$(dpkg-deb -f "$work/$package.deb" Version)" = "$version" ] || return 1
    done
}

release_is_that_of_the_version() {
    grep -q "<release version=\"$(dpkg-deb -f "$work/halvane.deb" Version)\"" \
        "$work/halvane/usr/share/metainfo/halvane.metainfo.xml"
}

# Files may hold relative paths: the source folder `/src` is not that of `../../src/runtime`.
no_file_names_this_machine() {
    ! LC_ALL=C grep -rlaP "(?<![\\w.])(\\Q$source\\E|\\Q$build\\E)(?!\\w)" "$work/halvane" "$work/halvane-exchange"
}

no_file_names_a_host() {
    local unknown
    unknown=$(find "$work/halvane" "$work/halvane-exchange" -type f -print0 |
        xargs -0 -n1 sh -c 'zcat -f "$0"' | grep -aohE 'https?://[A-Za-z0-9.-]+\.[A-Za-z0-9.-]+' | sort -u |
        grep -vxFf "$here/known-addresses.txt" || true)
    [ -z "$unknown" ] || { echo "$unknown"; return 1; }
}

manual_pages_are_sound() {
    local page said
    for page in "$work"/*/usr/share/man/man*/*.gz; do
        said=$(man --warnings -l "$page" 2>&1 >/dev/null) && [ -z "$said" ] || { echo "$page: $said"; return 1; }
    done
}

manual_page_names_every_option_of_the_exchange() {
    local option
    for option in $("$work/halvane-exchange/usr/bin/halvane-exchange" --help | sed '/^Settings/,$d' |
        grep -oE -- '--[a-z]+'); do
        zcat "$work/halvane-exchange/usr/share/man/man8/halvane-exchange.8.gz" | sed 's/\\-/-/g' |
            grep -F -- "$option" || { echo "$option is missing"; return 1; }
    done
}

icons_have_their_sizes() {
    local size head
    for size in 16 22 24 32 48 64 128 256 512; do
        head=$(od -An -tx1 -j16 -N8 "$work/halvane/usr/share/icons/hicolor/${size}x$size/apps/halvane.png" | tr -d ' ')
        [ "$head" = "$(printf '%08x%08x' "$size" "$size")" ] || { echo "$size: $head"; return 1; }
    done
}

# as PERSON COMMAND...: with that person's own folders
as() {
    local home=$work/$1
    shift
    mkdir -p "$home/run" "$home/config/Brindlewick"
    chmod 700 "$home/run"
    [ -e "$home/config/Brindlewick/HALVANE.ini" ] ||
        printf '[General]\nEULA=YES\n' >"$home/config/Brindlewick/HALVANE.ini"
    env HOME="$home" XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" XDG_RUNTIME_DIR="$home/run" "$@"
}

records() {
    echo "$work/$1/data/halvane/records"
}

# answer PERSON FILE STATEMENT
answer() {
    sqlite3 "$(records "$1")/$2" "$3"
}

# The start has passed the splash when it has written the number of the tip.
window_starts_and_ends() {
    local program
    rm -f "$work/$1/config/Brindlewick/HALVANE.ini"
    as "$1" sh -c 'echo $$ >"$HOME/process" && exec "$0"' "$work/halvane/usr/bin/halvane" &
    program=$!
    until grep -qs TIPNUM "$work/$1/config/Brindlewick/HALVANE.ini"; do
        kill -0 "$program" || return 1
        sleep 0.1
    done
    kill "$(cat "$work/$1/process")"
    wait "$program" || [ $? -eq 143 ]
}

first_start_lays_out_the_records() {
    window_starts_and_ends anna &&
        [ "$(answer anna users.mdb 'SELECT COUNT(*) FROM RDI')" = 22 ] &&
        [ "$(answer anna foods.mdb 'SELECT COUNT(*) FROM FOODS')" = 7412 ]
}

each_person_has_records_of_their_own() {
    answer anna users.mdb "INSERT INTO profiles (UserName) VALUES ('Anna')"
    as berta "$work/halvane/usr/bin/halvane-data" search butter | grep 'Butter, salted' &&
        [ "$(answer berta users.mdb 'SELECT COUNT(*) FROM profiles')" = 0 ] &&
        [ "$(stat -c %a "$(records anna)")" = 700 ]
}

data_finds_the_records_of_the_window() {
    as anna "$work/halvane/usr/bin/halvane-data" table profile | grep Anna
}

# A newer package has other stock foods.
new_package_updates_the_stock_foods_and_keeps_the_rest() {
    local share=$work/halvane/usr/share/halvane
    answer anna foods.mdb "INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'My soup')"
    sed -i 's/Butter, salted/Butter with salt/' "$share/foods.tsv"
    echo newer >"$share/delivery.id"
    window_starts_and_ends anna &&
        [ "$(answer anna foods.mdb 'SELECT FoodName FROM FOODS WHERE ID = 16096')" = "Butter with salt" ] &&
        [ "$(answer anna foods.mdb 'SELECT FoodName FROM FOODS WHERE ID = 23509')" = "My soup" ] &&
        [ "$(answer anna users.mdb 'SELECT UserName FROM profiles')" = Anna ] &&
        as berta "$work/halvane/usr/bin/halvane-data" search butter | grep 'Butter with salt'
}

# The settings of the package, but a port and a folder of the test's own.
exchange_starts_and_ends() {
    local server
    "$work/halvane-exchange/usr/bin/halvane-exchange" --config "$work/halvane-exchange/etc/halvane-exchange.conf" \
        --port 0 --database "$work/exchange.db" --secret_file "$work/exchange.secret" >"$work/log" 2>&1 &
    server=$!
    until grep -q '"event":"started"' "$work/log"; do
        kill -0 "$server" || { cat "$work/log"; return 1; }
        sleep 0.1
    done
    kill "$server"
    wait "$server" && grep -q '"event":"ended"' "$work/log"
}

service_is_sound() {
    local unit=$work/halvane-exchange/usr/lib/systemd/system/halvane-exchange.service
    sed "s|/usr/bin/halvane-exchange|$work/halvane-exchange/usr/bin/halvane-exchange|" "$unit" \
        >"$work/halvane-exchange.service"
    systemd-analyze verify --man=no "$work/halvane-exchange.service" && [ ! -s "$work/said" ]
}

account_can_be_made() {
    mkdir -p "$work/root/etc"
    systemd-sysusers --root="$work/root" "$work/halvane-exchange/usr/lib/sysusers.d/halvane-exchange.conf"
    grep -q '^halvane-exchange:.*:/var/lib/halvane-exchange:' "$work/root/etc/passwd"
}

check "both packages are made" make_packages
check "lintian finds no error" no_lintian_errors
check "the desktop entry is valid" desktop_entry_is_valid
check "the AppStream data is valid" appstream_data_is_valid
check "halvane holds what is listed" holds halvane
check "halvane-exchange holds what is listed" holds halvane-exchange
check "all can read the folders" folders_are_readable_for_all
check "halvane depends on what it loads" depends_on halvane libqt6widgets6 libqt6svg6 libsqlite3-0 libzip4 libxlsxwriter
check "halvane-exchange depends on what it loads" depends_on halvane-exchange libpq5 libsqlite3-0 libcurl systemd
check "the version is that of the changelog" version_is_that_of_the_changelog
check "the AppStream release is that version" release_is_that_of_the_version
check "no file names this machine" no_file_names_this_machine
check "no file names a host of the network" no_file_names_a_host
check "the manual pages are sound" manual_pages_are_sound
check "the manual page names every option" manual_page_names_every_option_of_the_exchange
check "the icons have their sizes" icons_have_their_sizes
check "the first start lays out the records" first_start_lays_out_the_records
check "each person has records of their own" each_person_has_records_of_their_own
check "halvane-data finds the records of the window" data_finds_the_records_of_the_window
check "a new package updates the stock foods" new_package_updates_the_stock_foods_and_keeps_the_rest
check "the exchange starts and ends" exchange_starts_and_ends
check "the service of the exchange is sound" service_is_sound
check "the account of the exchange can be made" account_can_be_made
exit $((failures > 0))
