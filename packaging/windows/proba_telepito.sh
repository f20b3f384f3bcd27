# The installer's part of proba, sourced by it: what a user does, by keys, with a picture of each step.

telepito=$(ls "$PWD"/build/windows/korvend-*-telepito.exe)
otthon="$WINEPREFIX/drive_c/users/$(id -un)"
mappa="$otthon/AppData/Local/Programs/Korvend"
beallitas="$otthon/AppData/Local/Korvend"
iratok="$otthon/Documents"
keplet_json="$PWD/build/release/tools/keplet-json"

kep() {
    sleep "${2:-2}"
    import -window root "$kepek/$1.png"
}
# Waits until the program shows a window, at most half a minute; its milliseconds are in $ido.
ablakra_var() {
    kezdet=$(date +%s%3N)
    for _ in $(seq 300); do
        if xdotool search --onlyvisible --class korvend.exe >/dev/null 2>&1; then
            ido=$(($(date +%s%3N) - kezdet))
            return 0
        fi
        sleep 0.1
    done
    hiba "no window of the program"
    return 1
}
# Wine gives the keyboard to no window when a file dialog closes; a user would click into the program's.
elore() {
    xdotool windowactivate --sync "$(xdotool search --onlyvisible --class korvend.exe | head -n 1)"
}
# Ends the program by its menu's key; the question is answered with yes.
kilep() {
    xdotool key ctrl+q
    sleep 2
    xdotool key Return
    sleep 2
    if xdotool search --onlyvisible --class korvend.exe >/dev/null 2>&1; then hiba "the program did not end"; fi
    wineserver -w
}
van() {
    [ -e "$1" ] || hiba "missing: $1"
}
nincs() {
    [ ! -e "$1" ] || hiba "still there: $1"
}
regi_kulcs() {
    wine reg query "$1" >/dev/null 2>&1
}

# The classes of a user are those of Windows' desktop; Wine's knows the machine's only, so they are copied there.
gep_tarsitas() {
    parancs=$(wine reg query 'HKCU\Software\Classes\Korvend.Keplet\shell\open\command' /ve | tr -d '\r' |
        sed -n 's/^.*REG_SZ *//p')
    wine reg add 'HKLM\Software\Classes\.kvh' /ve /d Korvend.Keplet /f >/dev/null
    wine reg add 'HKLM\Software\Classes\Korvend.Keplet\shell\open\command' /ve /d "$parancs" /f >/dev/null
}

rm -rf "$beallitas" # what the tests have left
echo "Silent install"
wine "$telepito" /S || hiba "the installer gives $?"
van "$mappa/korvend.exe"
van "$otthon/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Korvend/Korvend.lnk"
regi_kulcs 'HKCU\Software\Classes\Korvend.Keplet\shell\open\command' || hiba "no association"
diff -rq build/windows/keszlet "$mappa" | grep -v eltavolitas.exe && hiba "what is installed differs from what was built"

echo "First start, from the start menu; no password"
mkdir -p "$iratok"
wine start 'C:\users\'"$(id -un)"'\AppData\Roaming\Microsoft\Windows\Start Menu\Programs\Korvend\Korvend.lnk' >/dev/null 2>&1
ablakra_var
kep 01-elso-inditas
xdotool key Return
sleep 1
xdotool key Return
kep 02-foablak 3
[ "$(cat "$beallitas/jelszo")" = nincs ] || hiba "the answer of the first run is not stored"

echo "A birth is typed"
xdotool key ctrl+n
kep 03-uj-keplet
xdotool type --delay 30 "Kiss Anna"
for ertek in 1975 7 21 6 4 9; do
    xdotool key Tab
    xdotool type --delay 30 "$ertek"
done
xdotool key Tab
xdotool type --delay 30 "Szeged"
kep 04-beirva
xdotool key Return # takes the place out of the list
sleep 1
xdotool key Return
kep 05-keplet 3

echo "It is saved"
xdotool key ctrl+s
kep 06-mentes 3
xdotool key Return
sleep 3
van "$iratok/Kiss Anna.kvh"
[ "$(stat -c %s "$iratok/Kiss Anna.kvh")" = 628 ] || hiba "the chart file is not of 628 bytes"
echo "{\"op\":\"kvh_olvas\",\"fajl\":\"$iratok/Kiss Anna.kvh\"}" | "$keplet_json" |
    grep '"nev":"Kiss Anna","pillanat":\[1975,7,21,6,4,9\]' || hiba "the chart reads otherwise here"

echo "It is printed into a PDF file"
elore
xdotool key ctrl+p
sleep 2
xdotool type --delay 30 "Kiss Anna"
kep 07-nyomtatas
xdotool key Return
sleep 2
kep 08-pdf-helye
xdotool key Return
sleep 4
pdf=$(find "$iratok" -name '*.pdf' | head -n 1)
elore
if [ -n "$pdf" ]; then
    pdftoppm -r 100 -png -singlefile "$pdf" "$kepek/09-nyomat"
    pdffonts "$pdf"
else
    hiba "no PDF file"
fi
kilep

echo "Written here, opened there by its file: double click"
itteni="$iratok/Őrült Ágnes.kvh"
echo "{\"op\":\"kvh_ir\",\"fajl\":\"$itteni\",\"nev\":\"Őrült Ágnes\",\"pillanat\":[1962,10,3,14,25,0],\"idozona\":1,\"nyariIdo\":0,\"helyseg\":\"Győr\",\"hosszusag\":63480,\"szelesseg\":171660,\"jegyzet\":\"\",\"hang\":\"\",\"esemenyek\":[]}" |
    "$keplet_json" | grep -q '"meret":628' || hiba "the chart can't be written"
gep_tarsitas
timeout 60 wine start /unix "$itteni" >/dev/null 2>&1
ablakra_var && echo "Start under Wine to the first window: $ido ms"
kep 10-tarsitas 4
kilep

echo "The same chart here, for the eye"
XDG_CONFIG_HOME="$hely/beallitas"
export XDG_CONFIG_HOME
mkdir -p "$XDG_CONFIG_HOME/Korvend"
echo nincs >"$XDG_CONFIG_HOME/Korvend/jelszo"
build/release/bin/korvend "$itteni" >/dev/null 2>&1 &
linuxos=$!
kep 11-linux 5
kill "$linuxos"

echo "Installed over a running program, then over one at rest; removed"
(cd "$mappa" && exec wine ./korvend.exe >/dev/null 2>&1) &
ablakra_var
sleep 2
if wine "$telepito" /S; then hiba "installed over a running program"; fi
kilep
echo marad >"$mappa/Sajat.kvh"
echo regi >"$mappa/Qt6Core.dll"
wine "$telepito" /S || hiba "the upgrade gives $?"
cmp -s build/windows/keszlet/Qt6Core.dll "$mappa/Qt6Core.dll" || hiba "the upgrade leaves an old library"
van "$beallitas/jelszo"
wine "$mappa/eltavolitas.exe" /S || hiba "the uninstaller gives $?"
sleep 5
wineserver -w
nincs "$mappa/korvend.exe"
nincs "$mappa/platforms"
nincs "$beallitas"
nincs "$otthon/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Korvend"
regi_kulcs 'HKCU\Software\Classes\Korvend.Keplet' && hiba "the association is still there"
[ "$(ls "$mappa")" = Sajat.kvh ] || hiba "left in the program's folder: $(ls "$mappa")"
van "$iratok/Kiss Anna.kvh"
