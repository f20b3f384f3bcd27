#!/bin/sh
# Fuzzes the chart-file reader: builds the target with clang and libFuzzer (Debian: clang, libclang-rt-14-dev) and runs it.
# Usage: tests/fuzz/futtat.sh [seconds] [folder for new finds]
set -eu
gyoker=$(cd "$(dirname "$0")/../.." && pwd)
ido=${1:-1200}
gyujtemeny=${2:-$gyoker/build/fuzz/gyujtemeny}
mkdir -p "$gyoker/build/fuzz" "$gyujtemeny"
# The reader needs the day look-up, which reads the ephemeris that a build has expanded.
objektumok=$(find "$gyoker/build/release/src/tables" -name '*.o')
cd "$gyoker/build/fuzz"
# shellcheck disable=SC2086
clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=all -I"$gyoker/src" \
    "$gyoker/tests/fuzz/kvh_fuzz.cpp" "$gyoker"/src/commands/kvhfajl.cpp "$gyoker"/src/commands/szemelyiadatok.cpp \
    "$gyoker"/src/commands/nezet.cpp "$gyoker"/src/files/*.cpp "$gyoker"/src/chart/*.cpp "$gyoker"/src/engine/*.cpp \
    $objektumok -o kvh_fuzz
./kvh_fuzz -max_total_time="$ido" -max_len=14000 -print_final_stats=1 "$gyujtemeny" "$gyoker/tests/fuzz/kvh_mintak"
