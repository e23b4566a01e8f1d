#!/usr/bin/env bash
# Installs the Debian packages the Linux build and tests need, when they are missing.
set -euo pipefail

packages=(cmake g++ make libgtest-dev libgmock-dev libbenchmark-dev)
# widl (Wine's IDL compiler) builds the type libraries the reader's tests read.
packages+=(wine64-tools)
# The mingw binutils put those libraries into 32- and 64-bit DLLs as resources, so the reader's
# tests of PE files run in every build, not only after the Windows toolchain is installed.
packages+=(binutils-mingw-w64-x86-64 binutils-mingw-w64-i686)
# liblnk's lnkinfo reads the shortcut files the fragment library writes, in a differential test.
packages+=(liblnk-dev liblnk-utils)
# MDB Tools reads the tables and fields of Access database files for "Copy from table".
packages+=(mdbtools-dev)
missing=()
for p in "${packages[@]}"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then sudo=sudo; else sudo=; fi
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
