#!/bin/sh
# Tests the installer under Wine, silently, in a fresh prefix: install without administrator
# rights, check the files and the add-in's registry entries, load the installed add-in through
# the harness, uninstall, check that nothing of it is left. Prints PASS/FAIL lines.
set -u
ROOT=$(cd "$(dirname "$0")/.." && pwd)
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
export WINEPREFIX=$ROOT/build-wine/prefix-installer
setup=$(ls "$ROOT"/build-installer/Quillet-setup-*.exe 2>/dev/null | head -n 1)
if [ -z "$setup" ]; then
    echo "test-installer: no installer (run scripts/build-installer.sh)" >&2
    exit 1
fi
rm -rf "$WINEPREFIX"
mkdir -p "$ROOT/build-wine"
log=$ROOT/build-wine/installer.log
# One virtual X server for the whole test; the steps run in order inside it.
xvfb-run -a sh "$ROOT/scripts/test-installer-steps.sh" "$ROOT" "$setup" >"$log" 2>&1
status=$?
grep -E '^(PASS|FAIL)  ' "$log"
tail -n 1 "$log"
exit $status
