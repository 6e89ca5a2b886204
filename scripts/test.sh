#!/usr/bin/env bash
# Sets up the machine, builds everything with AddressSanitizer and UndefinedBehaviorSanitizer,
# and runs the whole test suite; then runs the tests that start threads under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPV_SANITIZE=address,undefined >/dev/null
cmake --build build-asan -j2
ctest --test-dir build-asan --output-on-failure -j2

# The tests that run threads, once more under ThreadSanitizer: a second, small build that
# holds only the libraries and those tests. ASLR is switched off for it where possible,
# because the sanitizer's memory layout clashes with the high randomisation of newer kernels.
# The sanitizer's options and suppressions come with the tests (tests/CMakeLists.txt).
cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPV_SANITIZE=thread -DPV_CONCURRENCY_TESTS_ONLY=ON >/dev/null
cmake --build build-tsan -j2
no_aslr=()
if setarch "$(uname -m)" -R true 2>/dev/null; then
    no_aslr=(setarch "$(uname -m)" -R)
fi
"${no_aslr[@]}" ctest --test-dir build-tsan --output-on-failure -L concurrency

# A short run of every fuzz harness (clang's libFuzzer), so that a change that reopens a hole
# in the handling of hostile files does not land. PV_FUZZ_SECONDS is the time per harness;
# 0 leaves the run out.
fuzz_seconds="${PV_FUZZ_SECONDS:-45}"
if [ "$fuzz_seconds" != 0 ]; then
    scripts/fuzz.sh "$fuzz_seconds"
fi
