#!/usr/bin/env bash
# Installs what is missing, builds, and translates the example board.
cd "$(dirname "$0")"
source ./tools_common.sh
install_missing
build build
example="$PWD/examples/board.ndd"
# The side files add thermal ties and conductive areas; 20 asks for gaps of 20 % around traces.
KEEP_BENCHMARK=${KEEP_BENCHMARK:-0} ./build/ndd2qfx -NoUI -traces "$PWD/examples/traces" \
    -hkp "$PWD/examples/layout.hkp" "$example" "${example%.ndd}.qfx" 20 || true
echo "Output:    ${example%.ndd}.qfx"
echo "Log:       ${example%.ndd}.qfx.log"
echo "Reports:   $(dirname "$example")/error.log"
[ -s "${example%.ndd}.qfx" ]
