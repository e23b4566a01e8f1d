# Cross-building for Windows (i686) with mingw-w64, posix threads, and a static runtime:
# the DLL must load on a bare Windows with no extra runtime installed.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)

set(QUILLET_MINGW_PREFIX i686-w64-mingw32)
set(CMAKE_C_COMPILER ${QUILLET_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QUILLET_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${QUILLET_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${QUILLET_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# Tests under Wine find the runtime under this emulator.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
