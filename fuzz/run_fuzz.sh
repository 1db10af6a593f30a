#!/usr/bin/env bash
# Builds the libFuzzer harnesses (clang, address and undefined-behaviour sanitizers, in
# build-fuzz/) and runs one of them for a given time, then reports executions, corpus size
# and findings.
#
#   fuzz/run_fuzz.sh HARNESS SECONDS [more libFuzzer flags]
#   HARNESS: translate | traces | hkp | ibis | log | pinmap    (fuzz/run_fuzz.sh list shows the built ones)
#
# The working corpus grows in build-fuzz/corpus/HARNESS (seeded from fuzz/corpus/HARNESS),
# crashing, hanging and memory-hungry inputs land in build-fuzz/findings/HARNESS, the whole
# libFuzzer output in build-fuzz/logs/HARNESS.log. The run goes on after a finding
# (fork mode with one job); STOP_AT_FIRST=1 stops at the first one instead.
# Replay one input: build-fuzz/fuzz/fuzz_HARNESS FILE
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
build=$root/build-fuzz

install_fuzz_tools() {
    local missing=()
    for p in clang-14 libclang-rt-14-dev cmake make; do
        dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Installing: ${missing[*]}"
        local sudo=""
        [ "$(id -u)" -ne 0 ] && sudo="sudo"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
    fi
}

build_harnesses() {
    CXX=clang++-14 CC=clang-14 cmake -S "$root" -B "$build" -DNDD2QFX_FUZZ=ON \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build "$build" -j 2 >/dev/null
}

harness=${1:-}
seconds=${2:-}
if [ "$harness" = "list" ]; then
    install_fuzz_tools
    build_harnesses
    ls "$build/fuzz" | sed -n 's/^fuzz_//p'
    exit 0
fi
if [ -z "$harness" ] || ! [[ "$seconds" =~ ^[0-9]+$ ]]; then
    echo "usage: $0 HARNESS SECONDS [libFuzzer flags...]   (or: $0 list)" >&2
    exit 2
fi
shift 2

install_fuzz_tools
build_harnesses
program=$build/fuzz/fuzz_$harness
[ -x "$program" ] || { echo "no harness '$harness' (try: $0 list)" >&2; exit 2; }

corpus=$build/corpus/$harness
findings=$build/findings/$harness
logfile=$build/logs/$harness.log
seeds=$root/fuzz/corpus/$harness
mkdir -p "$corpus" "$findings" "$(dirname "$logfile")" "$build/tmp" "$seeds"

mode=(-fork=1 -ignore_crashes=1 -ignore_timeouts=1 -ignore_ooms=1)
[ "${STOP_AT_FIRST:-0}" = "1" ] && mode=()

before=$(find "$findings" -type f | wc -l)
start=$(date +%s)
# Scratch folders go below build-fuzz/tmp, so a crashed run leaves nothing elsewhere.
status=0
TMPDIR=$build/tmp KEEP_BENCHMARK=0 "$program" "$corpus" "$seeds" "${mode[@]}" \
    -max_total_time="$seconds" -rss_limit_mb=2048 -timeout=10 -close_fd_mask=2 \
    -print_final_stats=1 -artifact_prefix="$findings/" "$@" >"$logfile" 2>&1 || status=$?
elapsed=$(( $(date +%s) - start ))

# Executions: the final statistics of a plain run, or the last progress line of fork mode.
execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$logfile" | tail -1)
if [ -z "$execs" ]; then
    execs=$(grep -oE '^#[0-9]+' "$logfile" | tail -1 | tr -d '#')
fi
after=$(find "$findings" -type f | wc -l)
echo "harness:     $harness"
echo "time:        ${elapsed} s (asked ${seconds} s)"
echo "executions:  ${execs:-unknown}"
echo "corpus:      $(find "$corpus" -type f | wc -l) files in $corpus (+ $(find "$seeds" -type f | wc -l) seeds)"
echo "findings:    $((after - before)) new, $after in all in $findings"
find "$findings" -type f -newermt "@$start" -printf '             %f\n' 2>/dev/null || true
echo "log:         $logfile (libFuzzer status $status)"
