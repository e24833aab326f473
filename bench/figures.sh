# Sourced by the scripts that take figures: builds the programs and the benchmarks, and runs these.
# rounds has how often a command is run, and must be set before. One round is a trial of whether all
# of it still works; its figures mean nothing.

. tools/setup.sh
install_missing "${build_packages[@]}" "${test_packages[@]}" libxml2-utils
say "Building the ci preset"
quietly cmake --preset ci
quietly cmake --build --preset ci
bin=$PWD/build/ci/bin bench=$PWD/build/ci/bench

# benchmark NAME [ARGUMENT]...: what a benchmark measured, nine times over, as lines of CSV without
# quotation marks. Fails where it could not measure something.
benchmark() {
    local name=$1 trial=()
    shift
    [ "$rounds" -gt 1 ] || trial=(--benchmark_repetitions=2 --benchmark_min_time=0.001)
    "$bench/$name" --benchmark_format=csv --benchmark_repetitions=9 "$@" "${trial[@]}" 2>/dev/null |
        tr -d '"' | awk -F, '
            $9 == "true" { print >"/dev/stderr"; failed = 1 }
            { print }
            END { exit failed }'
}
