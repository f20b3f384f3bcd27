#!/bin/sh
# Each line of docs/rules.md names a source file and a test: both must exist.
set -eu
cd "$(dirname "$0")/.."
sorok=0
hibak=""
while IFS='|' read -r _ szabaly fajl teszt _; do
    fajl=$(echo "$fajl" | tr -d ' `')
    teszt=$(echo "$teszt" | tr -d ' `')
    case $fajl in */*) ;; *) continue ;; esac
    sorok=$((sorok + 1))
    [ -f "src/$fajl" ] || hibak="$hibak
no file src/$fajl:$szabaly"
    keszlet=${teszt%%.*}
    nev=${teszt#*.}
    if [ "${keszlet%Teszt}" != "$keszlet" ]; then
        minta="void $nev()"
        helyek=$(grep -rl "class $keszlet :" tests/windows) || helyek=""
    else
        minta="TEST(_F)?\\($keszlet, *$nev\\)"
        helyek=$(find tests -name '*_teszt.cpp')
    fi
    # shellcheck disable=SC2086
    { [ -n "$helyek" ] && grep -qE "$(echo "$minta" | sed 's/()/\\(\\)/')" $helyek; } || hibak="$hibak
no test $teszt:$szabaly"
done <docs/rules.md
[ "$sorok" -gt 50 ] || hibak="$hibak
only $sorok rules read"
[ -z "$hibak" ] && echo "$sorok rules" && exit 0
echo "$hibak"
exit 1
