#!/usr/bin/env bash
# qfxview on large decks: time and peak memory of checking, and of checking and drawing.
# The decks are the example board's, translated as run.sh does and repeated in a grid by
# multiply_deck.py to 10 MB and 100 MB. Prints figures; it is not a test.
# Usage: bench/qfxview_bench.sh [BUILD_DIR]   (default build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r examples "$work/example"
(cd "$work/example" && KEEP_BENCHMARK=0 "$OLDPWD/$build/ndd2qfx" -NoUI -traces "$PWD/traces" \
    -hkp "$PWD/layout.hkp" "$PWD/board.ndd" "$PWD/board.qfx" 20 >/dev/null 2>&1)
for mb in 10 100; do
    deck="$work/deck$mb.qfx"
    python3 bench/multiply_deck.py "$work/example/board.qfx" "$mb" "$deck" >/dev/null
    size=$(du -m "$deck" | cut -f1)
    summary=$("$build/qfxview/qfxview" "$deck" --stats 2>"$work/check.txt" | tail -1)
    echo "deck of $size MB: ${summary#*: }"
    echo "  check:          $(sed 's/^qfxview: //' "$work/check.txt")"
    "$build/qfxview/qfxview" "$deck" --stats -o "$work/pictures$mb" >/dev/null 2>"$work/draw.txt"
    echo "  check and draw: $(sed 's/^qfxview: //' "$work/draw.txt") (1600 pixels wide)"
done
