#!/usr/bin/env bash
# The decks that the translator writes must check with no error: those of its own batch
# tests (their scratch folders hand them over through NDD2QFX_KEEP_DECKS) and that of the
# example board, translated as run.sh does. Warnings may only be of the kinds that name a
# rule of the output as it is specified.
# Usage: translated_decks.sh CORE_TESTS QFXVIEW NDD2QFX SOURCE_DIR
set -u
core_tests=$(readlink -f "$1") qfxview=$(readlink -f "$2") ndd2qfx=$(readlink -f "$3")
source=$(readlink -f "$4")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/decks"

# Every test of the translator that leaves a deck in its scratch folder hands it over.
NDD2QFX_KEEP_DECKS="$work/decks" KEEP_BENCHMARK=0 "$core_tests" \
    >"$work/core_tests.log" 2>&1 || { echo "core_tests failed"; tail -20 "$work/core_tests.log"; exit 1; }

cp -r "$source/examples" "$work/example"
(cd "$work/example" && KEEP_BENCHMARK=0 "$ndd2qfx" -NoUI -traces "$PWD/traces" \
    -hkp "$PWD/layout.hkp" "$PWD/board.ndd" "$PWD/board.qfx" 20 >/dev/null 2>&1)
cp "$work/example/board.qfx" "$work/decks/example.board.qfx"

# Warnings that the output as specified makes; anything else is a fault.
allowed='\[(layer-name-repeated|non-finite-number|patch-without-shapes|pad-layer-not-in-stack|mirrored-padstack-without-pads|via-node-net|linkage-case|linkage-block-affix)\]$'
# Tests whose "deck" is not a finished translation on purpose: one cut off by a file-size
# limit, one that is the input board itself under a .qfx name (the run refuses to write it).
broken_on_purpose='^SafeBatchRun\.(AFullDiskFailsTheTranslation|OutputThatIsTheInputUnderAnotherNameIsRefused)\.'
decks=0 bad=0 empty=0
for deck in "$work/decks"/*.qfx; do
    [ -e "$deck" ] || continue
    basename "$deck" | grep -qE "$broken_on_purpose" && continue
    # An empty file is what a translation leaves that stopped before its first line (the
    # tests that make one expect it); qfxview calls it "the deck is empty", rightly.
    if [ ! -s "$deck" ]; then
        empty=$((empty + 1))
        continue
    fi
    decks=$((decks + 1))
    out=$("$qfxview" "$deck")
    status=$?
    printf '%s\n' "$out" | grep -oE ': warning: .*\[[a-z-]+\]$' | grep -oE '\[[a-z-]+\]$' \
        >>"$work/warnings.txt"
    unexplained=$(printf '%s\n' "$out" | grep -E ': (error|warning): ' | grep -Ev ": warning: .*$allowed")
    if [ $status -ne 0 ] || [ -n "$unexplained" ]; then
        bad=$((bad + 1))
        echo "== $(basename "$deck") (exit $status)"
        printf '%s\n' "$out"
    fi
done
[ -s "$work/warnings.txt" ] && echo "warnings by rule:" $(sort "$work/warnings.txt" | uniq -c)
echo "$decks decks checked, $bad with findings that are not explained; $empty empty files"
[ "$decks" -ge 20 ] && [ "$bad" -eq 0 ]
