#!/bin/sh
# Installs what building and testing the Windows add-in needs on Debian:
# the mingw-w64 cross compilers (posix threads), Wine for 64-bit and 32-bit
# programs with its fonts (the caption buttons are drawn from Marlett), a
# virtual X server, NSIS for the installer, and GoogleTest's
# sources (built with the cross compilers for the Windows tests). Only missing
# packages are installed; the time taken is printed at the end.
#
# Wine's 32-bit half (wine32:i386) is optional: without it the 32-bit DLL is
# built but not run. It is not installed where the machine cannot run 32-bit
# programs (scripts/can-run-32bit.sh, or QUILLET_WINE_64_ONLY=1): there Debian's
# wine would pick its 32-bit loader for every program and fail. Its libraries must match the 64-bit ones version for
# version, so everything goes in one apt transaction; when a mirror serves an
# incomplete i386 index, the install is retried on the release's own suite,
# then without the 32-bit half.
set -eu

REQUIRED="g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix mingw-w64-tools
wine wine64 fonts-wine xvfb xauth nsis libgtest-dev"
OPTIONAL="wine32:i386"

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
    SUDO="sudo"
fi
export DEBIAN_FRONTEND=noninteractive

missingOf() {
    for p in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
            printf '%s ' "$p"
        fi
    done
}

# A mirror caught mid-sync fails one index now and then: retry, then go on
# with what was fetched (the install itself reports anything truly missing).
updateIndexes() {
    for attempt in 1 2 3; do
        if $SUDO apt-get update -qq; then
            return 0
        fi
        echo "install-windows-toolchain: apt-get update failed (attempt $attempt)"
        sleep 10
    done
    echo "install-windows-toolchain: going on with the indexes fetched"
}

install() {
    # shellcheck disable=SC2068
    $SUDO apt-get install -y -qq --no-install-recommends $@
}

start=$(date +%s)
here=$(cd "$(dirname "$0")" && pwd)
if machine32=$("$here/can-run-32bit.sh"); then
    echo "install-windows-toolchain: $machine32"
else
    echo "install-windows-toolchain: $machine32; wine32 is left out"
    OPTIONAL=""
fi
# shellcheck disable=SC2086
required=$(missingOf $REQUIRED)
optional=$(missingOf $OPTIONAL)
if [ -z "$required$optional" ]; then
    echo "install-windows-toolchain: everything is already installed"
    exit 0
fi

addedI386=""
if [ -n "$optional" ] && ! dpkg --print-foreign-architectures | grep -qx i386; then
    $SUDO dpkg --add-architecture i386
    addedI386=yes
fi
updateIndexes

echo "install-windows-toolchain: installing $required$optional"
codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
if ! install $required $optional; then
    echo "install-windows-toolchain: retrying on the $codename suite"
    if ! install -t "$codename" $required $optional; then
        if [ -n "$required" ]; then
            install $required
        fi
        echo "install-windows-toolchain: WARNING: $optional could not be installed;" \
             "32-bit programs will not run under Wine"
        # A mirror without i386 indexes would fail every later apt-get update: take the
        # architecture back out when nothing of it got installed.
        if [ -n "$addedI386" ] && [ -z "$(dpkg-query -W -f='${Architecture}\n' 2>/dev/null | grep -x i386)" ]; then
            $SUDO dpkg --remove-architecture i386 || true
        fi
    fi
fi

end=$(date +%s)
echo "install-windows-toolchain: done in $((end - start)) s"
