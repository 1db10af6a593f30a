#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test through CTest.
cd "$(dirname "$0")"
source ./tools_common.sh
install_missing
build build
export KEEP_BENCHMARK=0
ctest --test-dir build --output-on-failure -j "$(nproc)"
