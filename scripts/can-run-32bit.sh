#!/bin/sh
# Says in one line whether this machine can run 32-bit x86 programs, and exits 0 when it can,
# 1 when it cannot. Some kernels are built or booted without 32-bit support: there Debian's
# 32-bit Wine loader fails with "Exec format error", for 64-bit programs too once wine32 is
# installed. The test runs a tiny 32-bit ELF program (93 bytes: exit(42) through int 0x80).
#
# QUILLET_WINE_64_ONLY=1 forces the answer "cannot", so the 64-bit-only path can be tried on
# any machine.
set -u

case "${QUILLET_WINE_64_ONLY:-}" in
    ""|0|no|false) ;;
    *)
        echo "32-bit programs: taken as not runnable (QUILLET_WINE_64_ONLY is set)"
        exit 1
        ;;
esac

probe=$(mktemp "${TMPDIR:-/tmp}/quillet-elf32.XXXXXX") || {
    echo "32-bit programs: not run (no temporary file for the test)"
    exit 1
}
trap 'rm -f "$probe"' EXIT
# ELF header, one loadable segment, and: xor ebx,ebx; mov bl,42; xor eax,eax; inc eax; int 0x80.
printf '\177\105\114\106\001\001\001\000\000\000\000\000\000\000\000\000\002\000\003\000\001\000\000\000\124\200\004\010\064\000\000\000\000\000\000\000\000\000\000\000\064\000\040\000\001\000\050\000\000\000\000\000\001\000\000\000\000\000\000\000\000\200\004\010\000\200\004\010\135\000\000\000\135\000\000\000\005\000\000\000\000\020\000\000\061\333\263\052\061\300\100\315\200' >"$probe"
chmod +x "$probe"
"$probe" >/dev/null 2>&1
status=$?
if [ "$status" -eq 42 ]; then
    echo "32-bit programs: this machine runs them"
    exit 0
fi
echo "32-bit programs: this machine cannot run them (a 32-bit test program ended with $status)"
exit 1
