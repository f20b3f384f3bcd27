# Debian packages that the program, its tests, its generators and its package need, and what the scripts share; sourced
# by run, test, package and the CI.

epites="g++ cmake ninja-build qt6-base-dev libssl-dev qt6-multimedia-dev qt6-translations-l10n gstreamer1.0-plugins-base gstreamer1.0-plugins-good cmark-gfm nlohmann-json3-dev fonts-dejavu-core fonts-liberation"
teszt="tzdata libgtest-dev libbenchmark-dev libnova-dev liberfa-dev libswe-dev poppler-utils librsvg2-bin clang libclang-rt-14-dev clang-tidy"
fuzz="clang libclang-rt-14-dev"
csomagolas="dpkg-dev file librsvg2-bin lintian desktop-file-utils appstream binutils"
kereszt="g++-mingw-w64-x86-64-posix dpkg-dev nsis librsvg2-bin icoutils"
keresztproba="wine wine64 xvfb openbox xdotool imagemagick poppler-utils"

# Ends the script with one sentence.
vege() {
    echo "$1" >&2
    exit 1
}

# Installs those of the named packages that are missing.
telepit() {
    hianyzik=""
    for csomag in "$@"; do
        dpkg-query -W -f='${Status}' "$csomag" 2>/dev/null | grep -q 'ok installed' || hianyzik="$hianyzik $csomag"
    done
    [ -n "$hianyzik" ] || return 0
    command -v apt-get >/dev/null || vege "There is no apt-get here; these Debian packages are missing:$hianyzik"
    rendszergazda=""
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null && sudo -v || vege "Only root or sudo can install what is missing:$hianyzik"
        rendszergazda="sudo"
    fi
    echo "Installing:$hianyzik"
    # shellcheck disable=SC2086
    { $rendszergazda apt-get update -q &&
        $rendszergazda env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $hianyzik; } ||
        vege "apt-get could not install what is missing (is there a network?):$hianyzik"
}

# From here on the programs that are started leave what they leave, settings and temporary folders, in build/.
elzart_otthon() {
    HOME="$PWD/build/otthon"
    TMPDIR="$HOME/tmp"
    XDG_RUNTIME_DIR="$HOME/run"
    export HOME TMPDIR XDG_RUNTIME_DIR
    unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME
    rm -rf "$HOME"
    mkdir -p "$TMPDIR" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}
