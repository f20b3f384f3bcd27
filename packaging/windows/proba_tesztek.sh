# The tests' part of proba, sourced by it. The programs stand beside the libraries that are installed, so that they are tried
# with those.

cmake -G Ninja -S . -B build/windows-tesztek -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$windows/mingw.cmake" -DQt6_DIR="$qt/lib/cmake/Qt6" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(g++ -print-multiarch)/cmake" -DKORVEND_BENCH=OFF >/dev/null
cmake --build build/windows-tesztek -j "$magok" >"$hely/epites.log" || {
    tail -n 20 "$hely/epites.log"
    echo "The tests can't be built for Windows" >&2
    exit 1
}

programok="$hely/programok"
rm -rf "$programok"
cp -r build/windows/keszlet "$programok"
cp "$qt/bin/Qt6Test.dll" "$programok"
find build/windows-tesztek -name '*.exe' -exec cp {} "$programok" \;

# A program's result is in its exit code; its last lines say how many tests there were. A program of windows has no output of
# its own: the toolkit's tests write into a file.
futtat() {
    nev=$1
    naplo="$hely/$nev.log"
    shift
    kod=0
    (cd "$programok" && timeout 120 wine "./$nev.exe" "$@") >"$naplo" 2>&1 || kod=$?
    [ ! -f "$programok/$nev.txt" ] || naplo="$programok/$nev.txt"
    osszeg=$(grep -aE '^(Totals|\[  PASSED  \])' "$naplo" | tr -d '\r' | tail -n 1)
    if [ "$kod" = 0 ]; then
        echo "$nev: $osszeg"
    else
        echo "$nev: exit code $kod, $osszeg"
        grep -aE '^FAIL|\[  FAILED  \] [A-Z]' "$naplo" | tr -d '\r' | sort -u | sed 's/^/    /'
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
    case $nev in
        teszt_tables | teszt_engine | teszt_chart | teszt_drawing | teszt_files | teszt_predictive | teszt_commands | \
            teszt_events | teszt_rectify) ;; # done above
        teszt_keplet_json) ;;                # it drives the program through a shell
        *) futtat "$nev" -o "$nev.txt,txt" ;;
    esac
done
[ -z "$rossz" ] || echo "Tests of the windows that do not pass under Wine:$rossz"
