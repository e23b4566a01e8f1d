# Type libraries the reader's tests read: compiled from tests/typelib/idl with Wine's IDL compiler
# (widl, Debian package wine64-tools), and put as TYPELIB resources into a 64-bit and a 32-bit
# PE file with the mingw tools when they are there.
find_program(QUILLET_WIDL NAMES widl-stable widl)
if(NOT QUILLET_WIDL)
  message(FATAL_ERROR "widl (Debian package wine64-tools) is needed to build the type libraries of the "
                      "tests: run scripts/install-deps.sh")
endif()
find_path(QUILLET_STDOLE_DIR stdole2.tlb PATHS
  /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/i386-linux-gnu/wine/i386-windows
  /usr/lib/wine/x86_64-windows /usr/lib/wine/i386-windows NO_DEFAULT_PATH)
if(NOT QUILLET_STDOLE_DIR)
  message(FATAL_ERROR "stdole2.tlb (Debian package libwine) is needed to build the type libraries of the tests")
endif()

set(QUILLET_TYPELIB_DIR ${CMAKE_BINARY_DIR}/tests/typelib)
set(idl_dir ${CMAKE_SOURCE_DIR}/tests/typelib/idl)
file(MAKE_DIRECTORY ${QUILLET_TYPELIB_DIR})
add_custom_command(OUTPUT ${QUILLET_TYPELIB_DIR}/qltshapes.tlb
  COMMAND ${QUILLET_WIDL} -t -L ${QUILLET_STDOLE_DIR} -o ${QUILLET_TYPELIB_DIR}/qltshapes.tlb ${idl_dir}/qltshapes.idl
  DEPENDS ${idl_dir}/qltshapes.idl WORKING_DIRECTORY ${idl_dir} VERBATIM)
add_custom_command(OUTPUT ${QUILLET_TYPELIB_DIR}/qltuse.tlb
  COMMAND ${QUILLET_WIDL} -t -L ${QUILLET_STDOLE_DIR} -L ${QUILLET_TYPELIB_DIR} -I ${idl_dir}
          -o ${QUILLET_TYPELIB_DIR}/qltuse.tlb ${idl_dir}/qltuse.idl
  DEPENDS ${idl_dir}/qltuse.idl ${idl_dir}/qltshapes.idl ${QUILLET_TYPELIB_DIR}/qltshapes.tlb
  WORKING_DIRECTORY ${idl_dir} VERBATIM)
set(QUILLET_TYPELIB_FILES ${QUILLET_TYPELIB_DIR}/qltshapes.tlb ${QUILLET_TYPELIB_DIR}/qltuse.tlb)

# PE files whose resources 1 and 2 are the two libraries.
file(WRITE ${QUILLET_TYPELIB_DIR}/shapes.rc "1 TYPELIB \"qltshapes.tlb\"\n2 TYPELIB \"qltuse.tlb\"\n")
foreach(arch x86_64 i686)
  find_program(QUILLET_WINDRES_${arch} ${arch}-w64-mingw32-windres)
  find_program(QUILLET_PE_LD_${arch} ${arch}-w64-mingw32-ld)
  if(QUILLET_WINDRES_${arch} AND QUILLET_PE_LD_${arch})
    add_custom_command(OUTPUT ${QUILLET_TYPELIB_DIR}/shapes_${arch}.dll
      COMMAND ${QUILLET_WINDRES_${arch}} shapes.rc -O coff -o shapes_${arch}.o
      COMMAND ${QUILLET_PE_LD_${arch}} -shared -e 0 -o shapes_${arch}.dll shapes_${arch}.o
      DEPENDS ${QUILLET_TYPELIB_FILES} WORKING_DIRECTORY ${QUILLET_TYPELIB_DIR} VERBATIM)
    list(APPEND QUILLET_TYPELIB_FILES ${QUILLET_TYPELIB_DIR}/shapes_${arch}.dll)
  endif()
endforeach()
add_custom_target(quillet_typelib_fixtures DEPENDS ${QUILLET_TYPELIB_FILES})
