# Sourced by the scripts that run Wine (run-wine-tests.sh, test-installer.sh, the dialog
# benchmark), with ROOT set to the repository. Finds out once whether 32-bit Windows programs
# can run here and exports:
#   QUILLET_WINE32      yes or no
#   QUILLET_WINE32_WHY  the reason, when no
# Where the machine cannot run 32-bit programs at all (or QUILLET_WINE_64_ONLY is set), every
# wine, wineboot, winepath and regsvr32 the scripts call goes through scripts/wine64-only,
# which is put first on PATH: the 64-bit loader with WINELOADER set.

if [ -z "${QUILLET_WINE32:-}" ]; then
    if machine32=$("$ROOT/scripts/can-run-32bit.sh"); then
        if dpkg-query -W -f='${Status}' wine32:i386 2>/dev/null | grep -q "install ok installed"; then
            QUILLET_WINE32=yes
            QUILLET_WINE32_WHY=""
        else
            QUILLET_WINE32=no
            QUILLET_WINE32_WHY="wine32 is not installed"
        fi
    else
        QUILLET_WINE32=no
        QUILLET_WINE32_WHY=${machine32#32-bit programs: }
        case ":$PATH:" in
            *":$ROOT/scripts/wine64-only:"*) ;;
            *) PATH="$ROOT/scripts/wine64-only:$PATH" ;;
        esac
        export PATH
    fi
    export QUILLET_WINE32 QUILLET_WINE32_WHY
    echo "wine: 32-bit Windows programs ${QUILLET_WINE32_WHY:+not run: }${QUILLET_WINE32_WHY:-run here}"
fi
