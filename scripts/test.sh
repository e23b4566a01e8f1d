#!/usr/bin/env bash
# Builds Quillet and runs every test: the normal build, then the same tests under
# AddressSanitizer and UndefinedBehaviorSanitizer. `--quick` skips the sanitizer run.
set -euo pipefail
cd "$(dirname "$0")/.."

quick=0
[ "${1:-}" = "--quick" ] && quick=1
jobs=$(nproc)

scripts/install-deps.sh

echo "== build and test =="
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"

if [ "$quick" -eq 0 ]; then
    echo "== build and test with AddressSanitizer and UndefinedBehaviorSanitizer =="
    cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DQUILLET_SANITIZE=ON -DQUILLET_BENCH=OFF >/dev/null
    cmake --build build-sanitize -j"$jobs"
    # Every test, in a few long-lived processes rather than one process per test.
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        scripts/run-test-shards.sh build-sanitize/tests/quillet_tests "$jobs"
fi
