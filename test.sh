#!/usr/bin/env bash
# Installs what is missing, checks the formatting of the C++ files, builds, and runs every test
# through CTest: once in the normal build, once more under AddressSanitizer and
# UndefinedBehaviorSanitizer (any report fails).
cd "$(dirname "$0")"
source ./tools_common.sh
install_missing
export KEEP_BENCHMARK=0
check_format

build build
ctest --test-dir build --output-on-failure -j "$(nproc)"

build build-asan -DNDD2QFX_SANITIZE=ON -DNDD2QFX_BENCH=OFF
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
    ctest --test-dir build-asan --output-on-failure -j "$(nproc)"
