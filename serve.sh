#!/usr/bin/env bash
# Installs what is missing, builds the recipe exchange and serves it on this machine, at
# http://127.0.0.1:8613 unless a setting says otherwise. It can be run again at any time: the recipes
# stay in dist/exchange. docs/exchange.md names the settings and tells how to serve the internet.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh

install_packages exchange
cmake -S exchange -B build/exchange -G Ninja
cmake --build build/exchange
mkdir -p dist/exchange
export HALVANE_EXCHANGE_DATABASE="${HALVANE_EXCHANGE_DATABASE:-$PWD/dist/exchange/exchange.db}"
exec build/exchange/halvane-exchange "$@"
