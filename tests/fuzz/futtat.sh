#!/bin/sh
# Builds the fuzz targets with clang and libFuzzer (Debian: clang, libclang-rt-14-dev) and runs one of them.
# Usage: tests/fuzz/futtat.sh [target] [seconds] [folder for new finds]
set -eu
cd "$(dirname "$0")/../.."
cel=${1:-kvh}
ido=${2:-1200}
gyujtemeny=${3:-build/fuzz/gyujtemeny/$cel}
mkdir -p "$gyujtemeny"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "${cel}_fuzz"
build/fuzz/tests/fuzz/"${cel}_fuzz" -max_total_time="$ido" -max_len=14000 -print_final_stats=1 "$gyujtemeny" \
    "tests/fuzz/${cel}_mintak"
