#!/usr/bin/env bash
# Sets up the machine, builds everything with AddressSanitizer and UndefinedBehaviorSanitizer,
# and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPV_SANITIZE=address,undefined >/dev/null
cmake --build build-asan -j2
ctest --test-dir build-asan --output-on-failure -j2
