#!/bin/sh
# Start to first painted wheel against an empty main window: mean of 20 starts each, in milliseconds.
# Usage: bench/indulas.sh [folder of the programs]
set -eu
mappa=${1:-build/release/bin}
export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
meres() {
    "$1" 2>/dev/null
    kezdet=$(date +%s%N)
    for _ in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do "$1" 2>/dev/null; done
    echo $((($(date +%s%N) - kezdet) / 20000))
}
ures=$(meres "$mappa/indulas_ures")
korvend=$(meres "$mappa/indulas_korvend")
awk -v u="$ures" -v k="$korvend" 'BEGIN { printf "empty window %.1f ms, korvend %.1f ms, ratio %.2f\n", u / 1000, k / 1000, k / u }'
