#!/usr/bin/env bash
# Installs what is missing, builds, and translates the example board.
cd "$(dirname "$0")"
source ./tools_common.sh
install_missing
build build
example="$PWD/examples/board.ndd"
KEEP_BENCHMARK=${KEEP_BENCHMARK:-0} ./build/ndd2qfx -NoUI "$example" || true
echo "Output:    ${example%.ndd}.qfx"
echo "Log:       ${example%.ndd}.qfx.log"
echo "Reports:   $(dirname "$example")/error.log"
[ -s "${example%.ndd}.qfx" ]
