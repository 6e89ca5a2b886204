#!/usr/bin/env bash
# Sets up the machine, builds, and runs the catalogue tool on the bundled sample catalogue.
# Arguments are passed to the tool.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF >/dev/null
cmake --build build -j2 >/dev/null
if [ $# -eq 0 ]; then
    set -- list
fi
exec build/apps/pvproducts/pvproducts "$@"
