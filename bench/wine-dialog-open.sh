#!/bin/sh
# How long the Procedure Builder's window takes to open under Wine, from the click on
# "Add P&rocedure..." to the painted dialog, on a project of 5 and of 500 modules (100 lines each):
# builds the 64-bit DLL and harness (build-win64) and runs the harness's --bench-dialog in a
# fresh Wine prefix inside a virtual X server. Needs scripts/install-windows-toolchain.sh first.
# The model's part alone, without Windows, is bench/builder_open.cpp.
set -eu

ROOT=$(cd "$(dirname "$0")/.." && pwd)
DIR=$ROOT/build-win64
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" WINEPREFIX=$ROOT/build-wine/prefix-bench
. "$ROOT/scripts/wine-env.sh"

cmake -S "$ROOT" -B "$DIR" -DCMAKE_TOOLCHAIN_FILE="$ROOT/cmake/mingw-w64-x86_64.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DQUILLET_TESTS=OFF -DQUILLET_BENCH=OFF >/dev/null
cmake --build "$DIR" -j"${QUILLET_JOBS:-2}" --target Quillet quillet_wine_harness >/dev/null
rm -rf "$WINEPREFIX"
mkdir -p "$WINEPREFIX"
xvfb-run -a sh -c 'wineboot -i >/dev/null 2>&1
    wine reg add "HKCU\Software\Wine\Explorer" /v Desktop /d Default /f >/dev/null 2>&1
    wine reg add "HKCU\Software\Wine\Explorer\Desktops" /v Default /d 1024x768 /f >/dev/null 2>&1
    wineserver -w
    wine "$1" "$(winepath -w "$2")" --bench-dialog' bench "$DIR/tests/wine/quillet_wine_harness.exe" "$DIR/Quillet.dll" |
    grep -E "BENCH|FAIL"
