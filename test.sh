#!/bin/bash
# Installs what is missing, builds everything and runs all tests; see ./test.sh --help.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

usage() {
    cat <<'TEXT'
usage: ./test.sh [--sanitize] [-DNAME=VALUE...]

Builds all programs and tests into build/ and runs the tests in a language with a decimal comma, where
a number goes wrong that does so anywhere. With --sanitize they run in build-sanitize/, under the
address and undefined-behaviour sanitizers and in the language C. Further settings go to CMake as
they are, for example -DMZ_WERROR=ON.
TEXT
}

preset=release
folder=build
settings=()
for argument in "$@"; do
    case $argument in
    -h | --help)
        usage
        exit 0
        ;;
    --sanitize)
        preset=sanitize
        folder=build-sanitize
        ;;
    -D*) settings+=("$argument") ;;
    *)
        printf 'Unknown option: %s\n\n' "$argument" >&2
        usage >&2
        exit 2
        ;;
    esac
done

scripts/install-dependencies.sh build run test
cmake --preset "$preset" "${settings[@]}"
cmake --build "$folder"
export ASAN_OPTIONS=detect_stack_use_after_return=1:check_initialization_order=1
export LSAN_OPTIONS=suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1
if [[ $preset != sanitize ]]; then
    export MZ_TEST_LOCALE=de_DE.UTF-8 LOCPATH=$PWD/$folder/locales
    if [[ ! -d $LOCPATH/$MZ_TEST_LOCALE ]]; then
        mkdir -p "$LOCPATH"
        localedef --inputfile=de_DE --charmap=UTF-8 "$LOCPATH/$MZ_TEST_LOCALE"
    fi
fi
# Three to a core, since the slowest mostly wait for an instrument.
ctest --test-dir "$folder" --parallel $((3 * $(nproc))) --output-on-failure </dev/null
