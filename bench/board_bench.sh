#!/usr/bin/env bash
# Translates generated boards with the batch translator and prints, for each: input MB, CPU
# seconds, wall seconds, MB/s (input over CPU), peak resident memory and its ratio to the input,
# and CPU over a floor measured in the same run: one read of the input plus one writing of an
# output of the same size.
#
#   bench/board_bench.sh [BUILD_DIR] [SIZE_MB ...]      default: build 10 100
#   BOARD_DIR=/tmp/boards bench/board_bench.sh build 10 100 500 outline
#
# "outline" is a board of about 8 MB whose ground plane is one ring of 136,000 points reaching
# 680 voids through keyhole slits. Boards are made once by make_board.py (seed 1) and kept in
# BOARD_DIR (default BUILD_DIR/bench-boards), never in the source tree.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-$here/../build}"
shift || true
sizes=("$@")
[ ${#sizes[@]} -gt 0 ] || sizes=(10 100)
program="$build/ndd2qfx"
[ -x "$program" ] || { echo "No translator at $program: build it first." >&2; exit 1; }
boards="${BOARD_DIR:-$build/bench-boards}"
mkdir -p "$boards"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# CPU seconds (user + system) of a command, by /usr/bin/time.
cpu_of() {
    /usr/bin/time -f "%U %S" -o "$work/cpu" "$@" >/dev/null 2>&1
    awk '{ printf "%.3f", $1 + $2 }' "$work/cpu"
}

printf "%-8s %9s %8s %8s %7s %9s %6s %7s\n" board "input MB" "CPU s" "wall s" "MB/s" \
    "peak MB" "RSS/in" "CPU/fl"
for size in "${sizes[@]}"; do
    if [ "$size" = outline ]; then
        board="$boards/outline.ndd"
        args=(--mb 8 --slit-plane 136000 680)
    else
        board="$boards/board$size.ndd"
        args=(--mb "$size")
    fi
    [ -s "$board" ] || python3 "$here/make_board.py" --seed 1 "${args[@]}" "$board"
    out="$work/out.qfx"
    /usr/bin/time -v -o "$work/time" env KEEP_BENCHMARK=0 "$program" -NoUI "$board" "$out" \
        >/dev/null 2>&1 || { echo "translation of $board failed" >&2; cat "$work/time" >&2; }
    in_bytes=$(stat -L -c %s "$board")
    out_bytes=$(stat -c %s "$out" 2>/dev/null || echo 0)
    # The floor: read the input once, write the output's size once.
    read_cpu=$(cpu_of cat "$board")
    write_cpu=$(cpu_of sh -c "head -c $out_bytes /dev/zero > $work/floor")
    rm -f "$work/floor" "$out" "$out.log"
    awk -v name="$size" -v in_bytes="$in_bytes" -v floor="$read_cpu $write_cpu" '
        /User time/ { user = $NF } /System time/ { sys = $NF }
        /Elapsed \(wall clock\)/ { n = split($NF, t, ":"); wall = 0
            for (i = 1; i <= n; i++) wall = wall * 60 + t[i] }
        /Maximum resident/ { rss = $NF / 1024 }
        END {
            split(floor, f, " "); fl = f[1] + f[2]; if (fl < 0.01) fl = 0.01
            mb = in_bytes / 1e6; cpu = user + sys
            printf "%-8s %9.1f %8.2f %8.2f %7.2f %9.1f %6.2f %7.1f\n", name, mb, cpu, wall,
                mb / (cpu > 0 ? cpu : 0.01), rss, rss * 1.048576 / mb, cpu / fl
        }' "$work/time"
done
