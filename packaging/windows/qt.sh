# Qt for Windows out of Debian's source package; sourced by epit. What is made here is kept in a folder named by this file,
# the toolchain file and the versions of source and compiler, so that a change of any of them builds it anew.

# Folder of the package lists and sources that are fetched beside the machine's own, which stay as they are.
forrasjegyzek() {
    apt_sajat="$gyorstar/apt"
    mkdir -p "$apt_sajat/sources.d" "$apt_sajat/lists/partial" "$apt_sajat/archives/partial"
    . /etc/os-release
    for fajl in /etc/apt/sources.list.d/*.sources; do
        [ -f "$fajl" ] || continue
        grep -q "^Suites:.*$VERSION_CODENAME" "$fajl" || continue
        sed 's/^Types:.*/Types: deb-src/' "$fajl" >"$apt_sajat/sources.d/${fajl##*/}"
    done
    cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null |
        sed -n "s/^deb\( .*$VERSION_CODENAME.*\)/deb-src\1/p" >"$apt_sajat/sources.d/masolat.list"
    sajat_apt update -q
}

sajat_apt() {
    apt-get -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$apt_sajat/sources.d" \
        -o Dir::State::lists="$apt_sajat/lists" -o Dir::Cache="$apt_sajat" -o Dir::Cache::archives="$apt_sajat/archives" \
        -o APT::Sandbox::User="$(id -un)" "$@"
}

# The machine's own Qt brings the tools (moc, rcc, uic) of this build, so the source is of the same version.
qt_forras() {
    forrasjegyzek
    rm -rf "$qt_epites"
    mkdir -p "$qt_epites"
    (cd "$qt_epites" && sajat_apt source -q "qt6-base=$qt_valtozat")
    mv "$qt_epites"/qt6-base-*/ "$qt_epites/forras"
    # Without OpenGL one place of the platform plug-in still asks for what only OpenGL declares.
    sed -i '/^static inline bool isSoftwareGl/,/^}/s/^#if QT_CONFIG(dynamicgl)$/#if QT_CONFIG(dynamicgl) \&\& QT_CONFIG(opengl)/' \
        "$qt_epites/forras/src/plugins/platforms/windows/qwindowswindow.cpp"
}

# Only what the program uses: core, gui, widgets, printing, the test library for the window tests. Drawing and text are
# Qt's own, with the libraries it brings, so that nothing but Windows itself is needed. direct2d and directwrite are both
# off, as the last link fails with one of them alone.
qt_beallit() {
    # A copy, as a build that goes on may do so from another folder of the project.
    cp "$windows/mingw.cmake" "$qt_epites/mingw.cmake"
    cmake -S "$qt_epites/forras" -B "$qt_epites/build" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$qt_epites/mingw.cmake" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt_epites/kesz" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(g++ -print-multiarch)/cmake" \
        -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DBUILD_SHARED_LIBS=ON \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF -DQT_BUILD_DOCS=OFF \
        -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_network=OFF -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF \
        -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF -DFEATURE_zstd=OFF -DFEATURE_icu=OFF \
        -DFEATURE_glib=OFF -DFEATURE_openssl=OFF -DFEATURE_androiddeployqt=OFF \
        -DFEATURE_direct2d=OFF -DFEATURE_directwrite=OFF -DFEATURE_directwrite3=OFF \
        -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF \
        -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF
}

# Sets $qt to the folder of the finished Qt, building it if there is none yet.
qt_keszites() {
    qt_valtozat=$(dpkg-query -W -f='${source:Version}' qt6-base-dev)
    fordito=$(dpkg-query -W -f='${Version}' g++-mingw-w64-x86-64-posix)
    kulcs=$({ echo "$qt_valtozat $fordito"; cat "$windows/qt.sh" "$windows/mingw.cmake"; } | sha256sum | cut -c1-16)
    qt="$gyorstar/qt-$kulcs"
    if [ -f "$qt/kesz" ]; then
        return 0
    fi
    qt_epites="$gyorstar/epites-$kulcs"
    # A build that was broken off goes on where it was.
    if [ ! -f "$qt_epites/forras_kesz" ]; then
        qt_forras
        touch "$qt_epites/forras_kesz"
    fi
    qt_beallit
    cmake --build "$qt_epites/build" -j "$magok"
    cmake --install "$qt_epites/build" --strip
    rm -rf "$qt"
    mv "$qt_epites/kesz" "$qt"
    touch "$qt/kesz"
    rm -rf "$qt_epites"
}
