#!/usr/bin/env bash
# Sets up the machine, builds the benchmarks in Release (build-release) and prints their
# tables: loading generated catalogues of 100, 1000 and 5000 files against the bare DOM parse
# of the same files, then the editor's queries. Arguments go to the benchmark program, for
# instance --benchmark_filter=Load or --benchmark_out=bench.json (every figure as JSON).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
echo "Building the benchmarks in build-release ..." >&2
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF -DPV_BENCHMARKS=ON "${launcher[@]}" >/dev/null
log=build-release/bench-build.log
if ! cmake --build build-release -j2 --target pv_benchmarks pv_load_profile >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
if [ ! -x build-release/benchmarks/pv_benchmarks ]; then
    echo "pv_benchmarks was not built: is libbenchmark-dev installed?" >&2
    exit 1
fi
build-release/benchmarks/pv_benchmarks "$@"
