#!/bin/sh
# Tests the installer under Wine, silently, in a fresh prefix: install without administrator
# rights, check the files and the add-in's registry entries, load the installed add-in through
# the harness, uninstall, check that nothing of it is left. Prints PASS/FAIL lines.
#
# Where 32-bit Windows programs cannot run (scripts/wine-env.sh), the installer itself, a 32-bit
# program, cannot either: the same installer built as a 64-bit program is tested instead
# (scripts/build-installer.sh --x64), with its 64-bit half checked and the 32-bit registration
# said to be unchecked.
set -u
ROOT=$(cd "$(dirname "$0")/.." && pwd)
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
export WINEPREFIX=$ROOT/build-wine/prefix-installer
. "$ROOT/scripts/wine-env.sh"
if [ "$QUILLET_WINE32" = yes ]; then
    setup=$(ls "$ROOT"/build-installer/Quillet-setup-*.exe 2>/dev/null | head -n 1)
else
    "$ROOT/scripts/build-installer.sh" --x64 >"$ROOT/build-wine/installer-build-x64.log" 2>&1 ||
        { echo "test-installer: the 64-bit test installer could not be built" >&2; exit 1; }
    setup=$(ls "$ROOT"/build-installer/x64/Quillet-setup-*-x64.exe 2>/dev/null | head -n 1)
fi
if [ -z "$setup" ]; then
    echo "test-installer: no installer (run scripts/build-installer.sh)" >&2
    exit 1
fi
echo "test-installer: testing $(basename "$setup")"
rm -rf "$WINEPREFIX"
mkdir -p "$ROOT/build-wine"
log=$ROOT/build-wine/installer.log
# One virtual X server for the whole test; the steps run in order inside it.
xvfb-run -a sh "$ROOT/scripts/test-installer-steps.sh" "$ROOT" "$setup" >"$log" 2>&1
status=$?
grep -E '^(PASS|FAIL)  |not checked' "$log"
tail -n 1 "$log"
exit $status
