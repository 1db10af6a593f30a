#!/usr/bin/env bash
# Installs what is missing, builds, translates the example board and prints a summary of
# what the translation wrote.
cd "$(dirname "$0")"
source ./tools_common.sh
install_missing
# Only the program: the tests and the benchmarks are ./test.sh's business.
echo "Building ndd2qfx (first time: a few minutes)..."
build_target build ndd2qfx || exit 1
example="$PWD/examples/board.ndd"
output="${example%.ndd}.qfx"
start=$(date +%s%N)
# The side files add thermal ties and conductive areas; 20 asks for gaps of 20 % around traces.
KEEP_BENCHMARK=${KEEP_BENCHMARK:-0} ./build/ndd2qfx -NoUI -traces "$PWD/examples/traces" \
    -hkp "$PWD/examples/layout.hkp" "$example" "$output" 20 || true
end=$(date +%s%N)
echo "Output:    $output"
echo "Log:       $output.log"
echo "Reports:   $(dirname "$example")/error.log"
[ -s "$output" ] || { echo "No output was written." >&2; exit 1; }
# Counts of the statements that the QFX file holds, by their leading words.
awk -v ms="$(((end - start) / 1000000))" '
    /^(Signal|Plane|Medium)\$/ || /^(MediumPseudo|PlanePseudo)[0-9]/ { layers++ }
    /^(Circle|Box|Polygon)/ { shapes++ }
    /^Node/ { nodes++ }
    /^Trace/ { traces++ }
    /^Via/ { vias++ }
    /^\.Connect / { components++ }
    END {
        printf "Summary:   %d layers, %d shapes, %d nodes, %d traces, %d vias, %d components", \
            layers, shapes, nodes, traces, vias, components
        printf " written in %d.%03d s\n", ms / 1000, ms % 1000
    }' "$output"
# The deck checked and drawn: one picture per conductor layer and the layer stack.
pictures="$(dirname "$example")/pictures"
status=0
./build/qfxview/qfxview "$output" -o "$pictures" --svg | grep -v '^wrote ' || status=$?
echo "Pictures:  $pictures/ (layer-*.png, layer-*.svg, stack.png)"
exit "$status"
