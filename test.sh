#!/usr/bin/env bash
# Installs what is missing, builds and runs every test. It can be run again at any time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh

install_packages build exchange test
cmake --preset dev
cmake --build --preset dev
export QT_QPA_PLATFORM=offscreen
# The corpora of what is quickly built, under sanitizers. The whole tree takes too long.
cmake --preset asan
cmake --build --preset asan --target sanitized
ctest --test-dir build/asan -L sanitized -j2 --output-on-failure
# The exchange under the thread sanitizer, which cannot bear every layout of the memory.
cmake --preset tsan
cmake --build --preset tsan --target test_exchange
setarch --addr-no-randomize ctest --preset tsan -L threads -j2
exec ctest --test-dir build/dev -j2 --output-on-failure
