#!/bin/sh
# Feeds every reader of foreign bytes with made-up ones, under the sanitizers.
#   scripts/fuzz.sh [SECONDS EACH, 60 by default] [FUZZER...]
# What breaks a reader is left in build-fuzz/findings; it belongs into a test.
set -eu

cd "$(dirname "$0")/.."
seconds=${1:-60}
[ $# -gt 0 ] && shift
[ $# -gt 0 ] || set -- replies settings curves formats pattern losses commands

cmake -S . -B build-fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DMZ_BUILD_FUZZ=ON -DBUILD_TESTING=OFF -DCMAKE_UNITY_BUILD=ON >/dev/null
targets=
for reader in "$@"; do
    targets="$targets fuzz_$reader"
done
# shellcheck disable=SC2086 # the targets are meant to be parted at the blanks
cmake --build build-fuzz --target $targets

export QT_LOGGING_RULES='*=false' ASAN_OPTIONS=detect_leaks=1
mkdir -p build-fuzz/findings
for reader in "$@"; do
    mkdir -p "build-fuzz/corpus/$reader"
    echo "== $reader, $seconds s"
    # The work grows in the build tree: the corpus in the project stays small.
    "build-fuzz/fuzz/fuzz_$reader" -max_total_time="$seconds" -max_len=4096 -timeout=10 \
        -artifact_prefix="build-fuzz/findings/$reader-" -close_fd_mask=1 -verbosity=0 \
        -print_final_stats=1 "build-fuzz/corpus/$reader" "fuzz/corpus/$reader"
done
