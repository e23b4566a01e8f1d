#!/bin/sh
# Builds the Windows installer (NSIS) from the two DLLs and the default files:
#   build-installer/Quillet-setup-<version>.exe
# The DLLs come from build-win32 and build-win64 (scripts/run-wine-tests.sh builds them).
set -eu
ROOT=$(cd "$(dirname "$0")/.." && pwd)
version=$(sed -n 's/.*kVersion\(Major\|Minor\|Revision\) = \([0-9]*\);.*/\2/p' "$ROOT/src/addin/version.h" | paste -sd. -)
out=$ROOT/build-installer
mkdir -p "$out"
for dll in "$ROOT/build-win32/Quillet.dll" "$ROOT/build-win64/Quillet.dll"; do
    if [ ! -f "$dll" ]; then
        echo "build-installer: $dll is missing (run scripts/run-wine-tests.sh first)" >&2
        exit 1
    fi
done
makensis -V2 -DVERSION="$version" \
    -DWIN32_DLL="$ROOT/build-win32/Quillet.dll" -DWIN64_DLL="$ROOT/build-win64/Quillet.dll" \
    -DDATA_DIR="$ROOT/data" -DOUT_FILE="$out/Quillet-setup-$version.exe" \
    "$ROOT/installer/quillet.nsi"
echo "build-installer: $out/Quillet-setup-$version.exe"
