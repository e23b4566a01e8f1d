#!/bin/sh
# The steps of scripts/test-installer.sh, run inside its virtual X server (QUILLET_WINE32 and
# the PATH come from scripts/wine-env.sh, sourced by that script).
ROOT=$1
setup=$2
failed=0
passed=0
check() {  # check "what" command...
    what=$1
    shift
    if "$@" >/dev/null 2>&1; then
        echo "PASS  $what"
        passed=$((passed + 1))
    else
        echo "FAIL  $what"
        failed=$((failed + 1))
    fi
}
regHas() { wine reg query "$1" /v "$2" >/dev/null 2>&1; }
regGone() { ! wine reg query "$1" >/dev/null 2>&1; }

wineboot -i >/dev/null 2>&1
wineserver -w
can32=${QUILLET_WINE32:-no}

wine "$setup" /S
wineserver -w
appdata=$(wine cmd /c echo %LOCALAPPDATA% 2>/dev/null | tr -d '\r')
dir=$(winepath -u "$appdata\\Programs\\Quillet" 2>/dev/null)
check "the 64-bit add-in is installed" test -f "$dir/x64/Quillet.dll"
check "the 32-bit add-in is installed" test -f "$dir/x86/Quillet.dll"
check "the default files are installed beside each" test -f "$dir/x64/data/quillet/Templates/CollectionClass/CollectionClass.cls" -a -f "$dir/x86/data/quillet/Templates/CollectionClass/CollectionClass.cls"
check "the uninstaller is installed" test -f "$dir/uninstall.exe"
check "the uninstaller is listed for the user" regHas 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet' UninstallString
check "the 64-bit editor lists Quillet.Connect" regHas 'HKCU\Software\Microsoft\VBA\VBE\6.0\Addins64\Quillet.Connect' LoadBehavior
if [ "$can32" = yes ]; then
    check "the 32-bit editor lists Quillet.Connect" regHas 'HKCU\Software\Microsoft\VBA\VBE\6.0\Addins\Quillet.Connect' LoadBehavior
    check "the VB6 IDE lists Quillet.Connect" regHas 'HKCU\Software\Microsoft\Visual Basic\6.0\Addins\Quillet.Connect' LoadBehavior
else
    echo "      32-bit registration not checked: 32-bit Windows programs do not run here (${QUILLET_WINE32_WHY:-unknown})"
fi
check "the installed 64-bit add-in loads and connects in the harness" \
    wine "$ROOT/build-win64/tests/wine/quillet_wine_harness.exe" "$appdata\\Programs\\Quillet\\x64\\Quillet.dll" --installed
if [ "$can32" = yes ]; then
    check "the installed 32-bit add-in loads and connects in the harness" \
        wine "$ROOT/build-win32/tests/wine/quillet_wine_harness.exe" "$appdata\\Programs\\Quillet\\x86\\Quillet.dll" --installed
else
    echo "      the installed 32-bit add-in not loaded: 32-bit Windows programs do not run here"
fi

wine "$dir/uninstall.exe" /S
wineserver -w
check "uninstalling removes the installation folder" test ! -e "$dir"
check "uninstalling removes the 64-bit editor's entry" regGone 'HKCU\Software\Microsoft\VBA\VBE\6.0\Addins64\Quillet.Connect'
check "uninstalling removes the 32-bit editor's entry" regGone 'HKCU\Software\Microsoft\VBA\VBE\6.0\Addins\Quillet.Connect'
check "uninstalling removes the VB6 IDE's entry" regGone 'HKCU\Software\Microsoft\Visual Basic\6.0\Addins\Quillet.Connect'
check "uninstalling removes the user's classes" regGone 'HKCU\Software\Classes\Quillet.Connect'
check "uninstalling removes the classes registered for Wine" regGone 'HKLM\Software\Classes\Quillet.Connect'
check "uninstalling removes the uninstaller's listing" regGone 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet'
echo "installer: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
