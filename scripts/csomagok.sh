# Debian packages that the program, its tests and its generators need; sourced by run and test.

epites="g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev qt6-translations-l10n gstreamer1.0-plugins-base gstreamer1.0-plugins-good cmark-gfm nlohmann-json3-dev fonts-dejavu-core fonts-liberation"
teszt="tzdata libgtest-dev libbenchmark-dev libnova-dev liberfa-dev poppler-utils librsvg2-bin"
fuzz="clang libclang-rt-14-dev"
csomagolas="dpkg-dev file librsvg2-bin lintian desktop-file-utils appstream binutils"

# Installs those of the named packages that are missing.
telepit() {
    hianyzik=""
    for csomag in "$@"; do
        dpkg-query -W -f='${Status}' "$csomag" 2>/dev/null | grep -q 'ok installed' || hianyzik="$hianyzik $csomag"
    done
    [ -n "$hianyzik" ] || return 0
    rendszergazda=""
    [ "$(id -u)" = 0 ] || rendszergazda="sudo"
    echo "Installing:$hianyzik"
    $rendszergazda apt-get update -q
    # shellcheck disable=SC2086
    $rendszergazda env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $hianyzik
}
