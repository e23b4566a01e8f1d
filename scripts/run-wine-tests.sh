#!/bin/sh
# Builds Quillet.dll and the Wine harness for 64-bit and 32-bit Windows, then runs the harness
# under Wine (in a virtual X server) against each DLL, in a fresh Wine prefix, and the host
# contract over the COM host (quillet_com_contract). Prints a summary
# and exits non-zero when a build or a check fails. With both DLLs built, the installer is made
# and tested too (scripts/build-installer.sh, scripts/test-installer.sh). Pictures of the dialogs
# are left in build-wine/pictures64 and pictures32 (docs/pictures holds the current ones).
#
#   scripts/run-wine-tests.sh [64] [32]      (both when none is named)
#
# Environment: QUILLET_JOBS (default 2), QUILLET_BUILD_TYPE (default Release),
# QUILLET_WINE_64_ONLY=1 (run as on a machine that cannot run 32-bit programs: every Wine call
# through the 64-bit loader, the 32-bit DLL built but not run; see scripts/wine-env.sh).
set -u

ROOT=$(cd "$(dirname "$0")/.." && pwd)
JOBS=${QUILLET_JOBS:-2}
BUILD_TYPE=${QUILLET_BUILD_TYPE:-Release}
ARCHS=${*:-64 32}

export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="

summary=""
failed=0

# Whether 32-bit Windows programs run here; where the machine cannot run 32-bit programs at all,
# every Wine call below goes through the 64-bit loader.
. "$ROOT/scripts/wine-env.sh"

note() { printf '%s\n' "run-wine-tests: $*"; }

# The number of host contract checks that passed over the COM host.
contractPassed() {
    grep -c '^\[       OK \]' "$ROOT/build-wine/contract$1.log" 2>/dev/null || true
}

buildArch() {
    arch=$1
    case $arch in
        64) toolchain=mingw-w64-x86_64; dir=$ROOT/build-win64 ;;
        32) toolchain=mingw-w64-i686; dir=$ROOT/build-win32 ;;
    esac
    start=$(date +%s)
    cmake -S "$ROOT" -B "$dir" -DCMAKE_TOOLCHAIN_FILE="$ROOT/cmake/$toolchain.cmake" \
        -DCMAKE_BUILD_TYPE="$BUILD_TYPE" -DQUILLET_TESTS=OFF -DQUILLET_BENCH=OFF >"$dir.configure.log" 2>&1 &&
        cmake --build "$dir" -j"$JOBS" --target Quillet quillet_wine_harness quillet_profile_compare \
            quillet_com_contract >"$dir.build.log" 2>&1
    status=$?
    note "$arch-bit build took $(( $(date +%s) - start )) s"
    if [ $status -ne 0 ]; then
        tail -n 30 "$dir.build.log" "$dir.configure.log" 2>/dev/null
    fi
    return $status
}

runArch() {
    arch=$1
    dir=$ROOT/build-win$arch
    prefix=$ROOT/build-wine/prefix$arch
    rm -rf "$prefix"
    mkdir -p "$ROOT/build-wine"
    export WINEPREFIX="$prefix"
    start=$(date +%s)
    log=$ROOT/build-wine/harness$arch.log
    # The prefix is made inside the virtual X server: a Wine desktop started without a display
    # stays without one, and no window could be made in it. Windows live in a Wine virtual
    # desktop: without a window manager each top-level window and clipboard change would
    # otherwise wait seconds for X events that never come.
    # The harness also plays the builders' UI scripts on the real dialogs and takes their pictures
    # (the caption buttons are drawn from Marlett, which the prefix must hold).
    pictures=$ROOT/build-wine/pictures$arch
    # The shipped files beside the DLL, as the installer puts them: a first start installs them
    # into the user's settings folder (templates, error handlers, fragments).
    rm -rf "$dir/data"
    cp -r "$ROOT/data" "$dir/data"
    rm -rf "$pictures"
    mkdir -p "$pictures"
    xvfb-run -a sh -c 'wineboot -i >/dev/null 2>&1
        cp /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/" 2>/dev/null
        wine reg add "HKCU\Software\Wine\Explorer" /v Desktop /d Default /f >/dev/null 2>&1
        wine reg add "HKCU\Software\Wine\Explorer\Desktops" /v Default /d 1024x768 /f >/dev/null 2>&1
        wineserver -w
        wine "$1" "$(winepath -w "$2")" --scripts "$(winepath -w "$3")" --pictures "$(winepath -w "$4")"' harness \
        "$dir/tests/wine/quillet_wine_harness.exe" "$dir/Quillet.dll" "$ROOT/tests/builders/scripts" "$pictures" \
        >"$log" 2>&1
    status=$?
    # The same pictures at 144 DPI (150 %), where the dialogs must grow with the font.
    if [ "$arch" = 64 ]; then
        mkdir -p "$pictures/144dpi"
        xvfb-run -a sh -c 'wine reg add "HKCU\Control Panel\Desktop" /v LogPixels /t REG_DWORD /d 144 /f >/dev/null 2>&1
            wine reg add "HKCC\Software\Fonts" /v LogPixels /t REG_DWORD /d 144 /f >/dev/null 2>&1
            wineserver -w
            wine "$1" "$(winepath -w "$2")" --pictures-only --pictures "$(winepath -w "$3")"' harness \
            "$dir/tests/wine/quillet_wine_harness.exe" "$dir/Quillet.dll" "$pictures/144dpi" >"$log.144dpi" 2>&1 || status=1
        grep -E '^FAIL  ' "$log.144dpi" || true
    fi
    find "$pictures" -name '*.bmp' -exec sh -c 'python3 "$0" "$@" >/dev/null 2>&1 && rm -f "$@"' \
        "$ROOT/scripts/bmp-to-png.py" {} +
    wineserver -w 2>/dev/null
    grep -E '^(FAIL  |      )' "$log" || true
    tail -n 1 "$log"
    # The portable profile functions against Wine's (its own log; a failure fails the run).
    plog=$ROOT/build-wine/profile$arch.log
    wine "$dir/quillet_profile_compare.exe" >"$plog" 2>&1 || status=1
    grep -E '^(FAIL  |      )' "$plog" || true
    tail -n 1 "$plog"
    # The host contract over the COM host (its own log; a failure fails the run).
    clog=$ROOT/build-wine/contract$arch.log
    wine "$dir/tests/wine/contract/quillet_com_contract.exe" >"$clog" 2>&1 || status=1
    grep -E '^\[  FAILED  \]' "$clog" || true
    tail -n 1 "$clog"
    note "$arch-bit harness took $(( $(date +%s) - start )) s (prefix included)"
    return $status
}

for arch in $ARCHS; do
    if ! buildArch "$arch"; then
        summary="$summary\n  $arch-bit: BUILD FAILED"
        failed=1
        continue
    fi
    if [ "$arch" = 32 ] && [ "$QUILLET_WINE32" != yes ]; then
        summary="$summary\n  32-bit: built, not run ($QUILLET_WINE32_WHY)"
        continue
    fi
    if runArch "$arch"; then
        summary="$summary\n  $arch-bit: PASSED ($(grep -c '^PASS  ' "$ROOT/build-wine/harness$arch.log") checks;"
        summary="$summary contract: $(contractPassed "$arch") passed)"
    else
        summary="$summary\n  $arch-bit: FAILED (see build-wine/harness$arch.log, contract$arch.log;"
        summary="$summary contract: $(contractPassed "$arch") passed)"
        failed=1
    fi
done

# The installer, once both DLLs are built: made with NSIS, installed and removed silently.
if [ -f "$ROOT/build-win32/Quillet.dll" ] && [ -f "$ROOT/build-win64/Quillet.dll" ] && command -v makensis >/dev/null; then
    start=$(date +%s)
    if "$ROOT/scripts/build-installer.sh" >"$ROOT/build-wine/installer-build.log" 2>&1 &&
        "$ROOT/scripts/test-installer.sh"; then
        if [ "$QUILLET_WINE32" = yes ]; then
            summary="$summary\n  installer: PASSED"
        else
            summary="$summary\n  installer: PASSED as a 64-bit program, 64-bit half only (32-bit registration not checked: $QUILLET_WINE32_WHY)"
        fi
    else
        summary="$summary\n  installer: FAILED (see build-wine/installer.log)"
        failed=1
    fi
    note "installer took $(( $(date +%s) - start )) s"
else
    summary="$summary\n  installer: not built (a DLL or makensis is missing)"
fi

printf "Wine tests (32-bit Windows programs: ${QUILLET_WINE32_WHY:-run}):$summary\n"
exit $failed
