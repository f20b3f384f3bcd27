#!/bin/sh
# The rooms of the tree: an include goes down only, and Qt stays in windows/. Fails with a line for each include that
# does not keep to it.
# Usage: tests/szobak.sh [folder of the sources]
set -eu
forras=${1:-$(dirname "$0")/../src}
cd "$forras"

# Floor of each room; rooms on one floor do not know each other.
emeletek="tables 1
engine 2
chart 3
drawing 4
files 4
predictive 4
commands 5
events 5
rectify 6
windows 7"

hibak=$(
    for mappa in */; do
        szoba=${mappa%/}
        echo "$emeletek" | grep -q "^$szoba " || echo "$szoba/: a room without a floor"
    done
    find . -name '*.h' -o -name '*.cpp' -o -name '*.inc' | sed 's|^\./||' | sort | while read -r fajl; do
        awk -v fajl="$fajl" -v emeletek="$emeletek" '
            BEGIN {
                n = split(emeletek, sorok, "\n")
                for (i = 1; i <= n; ++i) { split(sorok[i], r, " "); emelet[r[1]] = r[2] }
                split(fajl, ut, "/")
                szoba = ut[1]
            }
            /^[ \t]*#[ \t]*include/ {
                mit = $0
                sub(/^[ \t]*#[ \t]*include[ \t]*/, "", mit)
                nev = substr(mit, 2)
                sub(/[">].*/, "", nev)
                if (mit ~ /^</ && nev ~ /^(Q[A-Za-z]|q[a-z]+\.h|Qt)/ && szoba != "windows")
                    print fajl ":" FNR ": Qt outside windows/: " nev
                if (mit ~ /^"/ && split(nev, cel, "/") > 1 && cel[1] != szoba) {
                    if (!(cel[1] in emelet)) print fajl ":" FNR ": no room: " nev
                    else if (emelet[cel[1]] >= emelet[szoba]) print fajl ":" FNR ": does not go down: " nev
                }
            }' "$fajl"
    done
)
[ -z "$hibak" ] && exit 0
echo "$hibak"
exit 1
