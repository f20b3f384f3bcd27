# The tests' part of proba, sourced by it. The programs stand beside the libraries that are installed, so that they are tried
# with those.

cmake -G Ninja -S . -B build/windows-tesztek -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$windows/mingw.cmake" -DQt6_DIR="$qt/lib/cmake/Qt6" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(g++ -print-multiarch)/cmake" -DKORVEND_BENCH=OFF >/dev/null
cmake --build build/windows-tesztek -j "$magok" | tail -n 1

programok="$hely/programok"
rm -rf "$programok"
cp -r build/windows/keszlet "$programok"
cp "$qt/bin/Qt6Test.dll" "$programok"
find build/windows-tesztek -name '*.exe' -exec cp {} "$programok" \;

# A program's result is in its exit code; its last lines say how many tests there were.
futtat() {
    nev=$1
    shift
    if (cd "$programok" && timeout 300 wine "./$nev.exe" "$@") >"$hely/$nev.log" 2>&1; then
        echo "$nev: $(grep -aE '^(Totals|\[  PASSED  \])' "$hely/$nev.log" | tr -d '\r' | tail -n 1)"
    else
        echo "$nev: exit code $?, $(grep -aE '^(Totals|\[  (PASSED|FAILED)  \]) ' "$hely/$nev.log" | tr -d '\r' | head -n 1)"
        grep -aE '^FAIL|\[  FAILED  \] [A-Z]' "$hely/$nev.log" | tr -d '\r' | sort -u | sed 's/^/    /'
        rossz="$rossz $nev"
    fi
}

rossz=""
for szoba in tables engine chart drawing files predictive commands events rectify; do
    futtat "teszt_$szoba"
done
[ -z "$rossz" ] || hiba "the core's tests:$rossz"

packaging/windows/egyezik | tail -n 1

rossz=""
for program in "$programok"/teszt_*.exe; do
    nev=$(basename "$program" .exe)
    [ -f "$hely/$nev.log" ] && [ "$hely/$nev.log" -nt "$program" ] && continue
    case $nev in teszt_keplet_json) continue ;; esac # it drives the program through a shell
    futtat "$nev"
done
[ -z "$rossz" ] || echo "Tests of the windows that do not pass under Wine:$rossz"
