#!/bin/sh
# Builds the Windows installer (NSIS) from the two DLLs and the default files:
#   build-installer/Quillet-setup-<version>.exe
# The DLLs come from build-win32 and build-win64 (scripts/run-wine-tests.sh builds them).
#
#   scripts/build-installer.sh [--x64]
#
# --x64 makes the same installer as a 64-bit program instead, for testing on a machine that cannot
# run 32-bit programs: build-installer/x64/Quillet-setup-<version>-x64.exe (never shipped).
set -eu
ROOT=$(cd "$(dirname "$0")/.." && pwd)
version=$(sed -n 's/.*kVersion\(Major\|Minor\|Revision\) = \([0-9]*\);.*/\2/p' "$ROOT/src/core/version.h" | paste -sd. -)
out=$ROOT/build-installer
file=$out/Quillet-setup-$version.exe
target=""
if [ "${1:-}" = "--x64" ]; then
    out=$out/x64
    file=$out/Quillet-setup-$version-x64.exe
    target="-DTARGET_AMD64"
fi
mkdir -p "$out"
for dll in "$ROOT/build-win32/Quillet.dll" "$ROOT/build-win64/Quillet.dll"; do
    if [ ! -f "$dll" ]; then
        echo "build-installer: $dll is missing (run scripts/run-wine-tests.sh first)" >&2
        exit 1
    fi
done
# shellcheck disable=SC2086
makensis -V2 -DVERSION="$version" $target \
    -DWIN32_DLL="$ROOT/build-win32/Quillet.dll" -DWIN64_DLL="$ROOT/build-win64/Quillet.dll" \
    -DDATA_DIR="$ROOT/data" -DOUT_FILE="$file" \
    "$ROOT/installer/quillet.nsi"
echo "build-installer: $file"
