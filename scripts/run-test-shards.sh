#!/usr/bin/env bash
# Runs a GoogleTest binary as JOBS shards side by side, one process each, and fails when one
# shard fails, printing that shard's failures. Under the sanitizers one process per test (what
# ctest does) spends most of its time starting processes; a few long-lived shards do the same
# checks in a fraction of the time.
#   run-test-shards.sh BINARY [JOBS]
set -uo pipefail

binary=$1
jobs=${2:-$(nproc)}
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT

pids=()
for ((index = 0; index < jobs; index++)); do
    GTEST_TOTAL_SHARDS=$jobs GTEST_SHARD_INDEX=$index "$binary" --gtest_brief=1 >"$logs/$index.log" 2>&1 &
    pids+=($!)
done

failed=0
for ((index = 0; index < jobs; index++)); do
    if wait "${pids[$index]}"; then
        echo "shard $((index + 1))/$jobs: $(grep -E '^\[  PASSED  \]' "$logs/$index.log" || echo passed)"
    else
        failed=1
        echo "shard $((index + 1))/$jobs FAILED:"
        cat "$logs/$index.log"
    fi
done
exit $failed
