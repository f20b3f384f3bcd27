#!/bin/sh
# Start to first painted wheel against a window with a menu bar and one label: medians of 40 starts of each, by turns,
# without a screen and on X11 under Xvfb (left out where that is not installed), and the private memory then.
# Usage: bench/indulas.sh [folder of the programs] [starts]
set -eu
mappa=${1:-build/release/bin}
korok=${2:-40}
meres() {
    QT_QPA_PLATFORM=$1 "$mappa/indulas_meres" "$1" "$mappa/indulas_ures" "$mappa/indulas_korvend" "$korok" 2>/dev/null
}
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
sync # pages of a program that has just been linked count as its own until they are on the disk
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
meres offscreen
if ! command -v Xvfb >/dev/null; then
    echo "Xvfb is not installed: X11 is not measured" >&2
    exit 0
fi
mkfifo "$XDG_RUNTIME_DIR/kijelzo"
Xvfb -displayfd 3 -screen 0 1280x900x24 3>"$XDG_RUNTIME_DIR/kijelzo" 2>/dev/null &
xvfb=$!
trap 'kill $xvfb; rm -rf "$XDG_RUNTIME_DIR"' EXIT
read -r szam <"$XDG_RUNTIME_DIR/kijelzo"
DISPLAY=:$szam
export DISPLAY
meres xcb
