#!/usr/bin/env bash
# Fuzzes every harness of tests/fuzz for the given number of seconds each (default 60) with
# libFuzzer, AddressSanitizer and UndefinedBehaviorSanitizer, and says what each found.
#
# What counts as a finding: a crash or sanitizer report, a leak, an input that runs longer than
# the timeout, an allocation beyond the malloc limit or a process beyond the RSS limit. Each is
# written to findings/<harness>/ (ignored by git); replay one with
#   build-fuzz/tests/fuzz/<harness> findings/<harness>/<file>
# The exit status is 1 when anything was found.
#
# Environment: PV_FUZZ_HARNESSES (space-separated names) runs only those;
# PV_FUZZ_KEEP_GOING=1 goes on after a finding (libFuzzer's fork mode) to collect more.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
if ! [[ "$seconds" =~ ^[1-9][0-9]*$ ]]; then
    echo "usage: scripts/fuzz.sh [seconds per harness, at least 1]" >&2
    exit 2
fi
harnesses=(${PV_FUZZ_HARNESSES:-fuzz_product_description fuzz_registry fuzz_category_translations fuzz_category_colors fuzz_spiral_pictures})

# The library's target is that a product file under 64 KB loads in 16 MB and 200 ms (release);
# with the sanitizers and every query of the harness on top, an input may take a few seconds.
# A harness process peaks at about 250 MB (sanitizer shadow and quarantine, Qt, the corpus), so
# the RSS limit catches growth across inputs. The malloc limits match MALLOC_LIMIT_MB in
# tests/fuzz/CMakeLists.txt.
max_len=65536
timeout_seconds=5
rss_limit_mb=1024
malloc_limit_mb() {
    case "$1" in
    fuzz_spiral_pictures) echo 32 ;;
    *) echo 16 ;;
    esac
}

scripts/setup.sh --fuzz
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DPV_FUZZ=ON "${launcher[@]}" >/dev/null
cmake --build build-fuzz -j2 --target "${harnesses[@]}"

# Seeds from the sample catalogue and the test fixtures, gathered afresh for every run.
seeds=build-fuzz/seeds
rm -rf "$seeds"
product_files() {
    find data/sample tests/data -path tests/data/fuzz -prune -o -name '*.xml' -type f -print \
        | grep -v -e '/colors.xml$' | LC_ALL=C sort
}
gather_seeds() {
    local harness="$1" dir="$seeds/$1"
    mkdir -p "$dir"
    case "$harness" in
    fuzz_product_description)
        product_files | while read -r f; do cp "$f" "$dir/$(echo "$f" | tr / _)"; done ;;
    fuzz_registry)
        # Each fixture folder as one input, its files joined by the separator line.
        product_files | xargs -n1 dirname | LC_ALL=C sort -u | while read -r d; do
            find "$d" -maxdepth 1 -type f | LC_ALL=C sort | head -16 \
                | while read -r f; do cat "$f"; printf '\n--8<--\n'; done | head -c $max_len >"$dir/$(echo "$d" | tr / _)"
        done ;;
    fuzz_category_translations)
        find data/sample tests/data -name '*.ts' -type f | while read -r f; do cp "$f" "$dir/$(echo "$f" | tr / _)"; done ;;
    fuzz_category_colors)
        find data/sample tests/data -name 'colors.xml' -type f | while read -r f; do cp "$f" "$dir/$(echo "$f" | tr / _)"; done ;;
    fuzz_spiral_pictures)
        product_files | xargs grep -l -e '<spirals' -e '<hole' | while read -r f; do cp "$f" "$dir/$(echo "$f" | tr / _)"; done ;;
    esac
}

export ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=64:malloc_context_size=20
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
keep_going=()
if [ "${PV_FUZZ_KEEP_GOING:-0}" = 1 ]; then
    keep_going=(-fork=1 -ignore_crashes=1 -ignore_timeouts=1 -ignore_ooms=1)
fi

summary=()
found_any=0
for harness in "${harnesses[@]}"; do
    short="${harness#fuzz_}"
    findings="findings/$harness"
    corpus="build-fuzz/corpus/$harness"
    regressions="tests/data/fuzz/$short"
    mkdir -p "$findings" "$corpus" "$regressions"
    gather_seeds "$harness"
    marker="$(mktemp)"
    echo "== $harness: ${seconds}s"
    status=0
    # New inputs go to the first folder only; seeds and regression inputs are read.
    "build-fuzz/tests/fuzz/$harness" "${keep_going[@]}" -max_total_time="$seconds" -max_len=$max_len \
        -timeout=$timeout_seconds -rss_limit_mb=$rss_limit_mb -malloc_limit_mb="$(malloc_limit_mb "$harness")" \
        -dict=tests/fuzz/pv.dict -use_value_profile=1 -artifact_prefix="$findings/" -close_fd_mask=1 -print_final_stats=1 \
        "$corpus" "$seeds/$harness" "$regressions" >"$findings/last-run.log" 2>&1 || status=$?
    new=()
    while IFS= read -r f; do new+=("$f"); done < <(find "$findings" -type f -newer "$marker" ! -name '*.log' | LC_ALL=C sort)
    rm -f "$marker"
    execs="$(grep -oE '^#[0-9]+' "$findings/last-run.log" | tail -1 | tr -d '#' || true)"
    # Time is wall-clock time: on a busy machine an input may time out once by bad luck. A
    # timeout counts when the input times out again on its own.
    confirmed=()
    for f in "${new[@]}"; do
        if [[ "$(basename "$f")" == timeout-* ]] && "build-fuzz/tests/fuzz/$harness" -timeout=$timeout_seconds \
            -rss_limit_mb=$rss_limit_mb -malloc_limit_mb="$(malloc_limit_mb "$harness")" "$f" >>"$findings/last-run.log" 2>&1; then
            summary+=("$harness: $f did not time out again (busy machine?); kept, not counted")
            continue
        fi
        confirmed+=("$f")
    done
    if [ ${#confirmed[@]} -gt 0 ] || { [ $status -ne 0 ] && [ ${#new[@]} -eq 0 ]; }; then
        found_any=1
        summary+=("$harness: FOUND ${#confirmed[@]} input(s) (exit $status, ${execs:-?} runs; log $findings/last-run.log)")
        for f in "${confirmed[@]}"; do summary+=("    $f"); done
        while IFS= read -r line; do summary+=("    $line"); done \
            < <(grep -E '^(==[0-9]+== ?ERROR|SUMMARY|.*runtime error)' "$findings/last-run.log" | LC_ALL=C sort -u | head -5)
    else
        summary+=("$harness: nothing found in ${execs:-?} runs")
    fi
done

echo
echo "Fuzzing summary (${seconds}s per harness):"
printf '%s\n' "${summary[@]}"
exit $found_any
