# Sourced by tools/build-windows: builds what the programs link. What a source needs changed is
# changed in its folder of build/windows.

# cross_build NAME SOURCE OPTION...: configures, builds and installs by CMake.
cross_build() {
    local name=$1 source=$2
    shift 2
    cmake -G Ninja -S "$source" -B "$windows/$name-build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$windows/libraries" \
        -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$windows/$name-build"
    cmake --install "$windows/$name-build"
}

# Without what the programs have no use for. Debian leaves the headers for tablets out, and
# DirectWrite 3 wants Direct2D.
build_qt() {
    local off=() feature
    for feature in androiddeployqt concurrent dbus direct2d directwrite3 gif jpeg pkg_config \
        printsupport qmake sql system_zlib tabletevent vulkan xml; do
        off+=("-DFEATURE_$feature=OFF")
    done
    cross_build qt "$sources/qt6-base" -DCMAKE_INSTALL_PREFIX="$windows/qt" \
        -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DFEATURE_static_runtime=ON \
        -DINPUT_opengl=no "${off[@]}"
}

# The module for SVG as Qt 5 has it, since the archive lacks the source of qt6-svg.
build_svg() {
    local source=$windows/svg-source
    rm -rf "$source"
    mkdir "$source"
    cp "$sources"/qtsvg-opensource-src/src/svg/*.{cpp,h} "$source"
    sed -i -f tools/windows/svg/qt6.sed "$source"/*
    cross_build svg tools/windows/svg -DCMAKE_INSTALL_PREFIX="$windows/qt" -DSVG_SOURCE="$source"
}

build_expat() {
    # Debian's patches compare what CMake defines without a value.
    sed -i 's/^#cmakedefine XML_DTD$/& 1/' "$sources/expat/expat/expat_config.h.cmake"
    cross_build expat "$sources/expat/expat" -DEXPAT_SHARED_LIBS=OFF -DEXPAT_BUILD_DOCS=OFF \
        -DEXPAT_BUILD_EXAMPLES=OFF -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_TOOLS=OFF
}

# One file, which has no build for Windows.
build_csv() {
    local prefix=$windows/libraries object=$windows/libcsv.o
    mkdir -p "$prefix/include" "$prefix/lib"
    x86_64-w64-mingw32-gcc-posix -O2 -c "$sources/libcsv/libcsv.c" -o "$object"
    rm -f "$prefix/lib/libcsv.a"
    x86_64-w64-mingw32-ar rcs "$prefix/lib/libcsv.a" "$object"
    cp "$sources/libcsv/csv.h" "$prefix/include"
}

build_xlsxwriter() {
    cross_build xlsxwriter "$sources/libxlsxwriter"
}

build_googletest() {
    cross_build googletest /usr/src/googletest -DBUILD_GMOCK=OFF
}
