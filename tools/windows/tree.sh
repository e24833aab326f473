# Sourced by tools/build-windows: builds our own tree, tests it under Wine and packs it.

# Its documents folder is a link into the home of whoever starts it first.
start_wine() {
    rm -rf "$WINEPREFIX" "$windows/home"
    mkdir -p "$windows/home/Documents"
    HOME=$windows/home wineboot --init
}

# What this system's own build gives: the icon, and the vellumo with which theirs is compared.
build_here() {
    quietly cmake --preset release
    quietly cmake --build --preset release --target vellumo icons
    convert build/release/packaging/{16,24,32,48,64,128,256}.png "$icon"
}

# Each test by itself: the macros of one file's system headers are none of another's business.
build_tree() {
    say 'Building the programs and their tests into build/windows/tree'
    quietly cmake -G Ninja -S . -B "$tree" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_CROSSCOMPILING_EMULATOR="$(command -v wine)" \
        -DVELLUMO_ICON="$icon" -DVELLUMO_TESTS_TOGETHER=OFF
    quietly cmake --build "$tree"
}

run_tests() {
    say 'Testing them under Wine'
    local other_there
    other_there=$(sed '/^#/d; /^$/d' tools/windows/other_there.txt | paste -sd:)
    GTEST_FILTER=-$other_there ctest --test-dir "$tree" --output-on-failure --timeout 300 >&2
}

# What this system's own vellumo makes is what must come of the packed programs.
try_archive() {
    rm -rf "$windows/tried"
    unzip -q "$archive" -d "$windows/tried"
    tools/windows/try-designer "$windows/tried/${archive_name}" "$PWD/build/release/bin/vellumo" \
        "$windows/pictures" >&2
}

# The same bytes for the same programs: in order, with one time.
make_archive() {
    local version folder
    version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    archive_name=vellumo-designer-$version-windows
    archive=$windows/$archive_name.zip
    folder=$windows/$archive_name
    rm -rf "$folder" "$archive"
    mkdir "$folder"
    cp "$tree"/bin/{vellumo-designer,vellumo,pilrc,build-prc}.exe "$tree/bin/Vellumo_Help.chm" LICENSE \
        "$folder"
    cp -r examples "$folder"
    find "$folder" -exec touch -h -d "@$packed" {} +
    (cd "$windows" && find "$archive_name" | LC_ALL=C sort | TZ=UTC zip -q -X -@ "$archive")
}
