# The Windows add-in: Quillet.dll (the COM entry points, the editor's object model over
# IDispatch, the Windows platform services) and, for tests under Wine, the harness that plays
# the editor. Included from the root list on Windows builds only (mingw-w64 cross builds here).

option(QUILLET_WINE_HARNESS "Build the Wine test harness" ON)

set(QUILLET_WIN_DEFINITIONS UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
set(QUILLET_WIN_LIBRARIES ole32 oleaut32 uuid user32 gdi32 advapi32 shell32 comdlg32)

file(GLOB QUILLET_WIN_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/hosts/com/*.cpp
  ${CMAKE_SOURCE_DIR}/src/platform/win/*.cpp)
add_library(quillet_win STATIC ${QUILLET_WIN_SOURCES})
target_link_libraries(quillet_win PUBLIC quillet_core ${QUILLET_WIN_LIBRARIES})
target_compile_definitions(quillet_win PUBLIC ${QUILLET_WIN_DEFINITIONS})

file(GLOB QUILLET_DLL_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/win32/*.cpp
  ${CMAKE_SOURCE_DIR}/src/win32/view/*.cpp)
# The command bar faces (bitmaps made by scripts/make-faces.py) are resources of the DLL.
enable_language(RC)
add_library(Quillet SHARED ${QUILLET_DLL_SOURCES} ${CMAKE_SOURCE_DIR}/src/win32/quillet.def
  ${CMAKE_SOURCE_DIR}/src/win32/faces.rc)
target_include_directories(Quillet PRIVATE ${CMAKE_SOURCE_DIR}/src/win32)
set_target_properties(Quillet PROPERTIES PREFIX "" OUTPUT_NAME Quillet)
# The dialogs' tool tips come from the common controls.
target_link_libraries(Quillet PRIVATE quillet_win comctl32)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # The exports are named without the stdcall decoration, as regsvr32 and COM look them up.
  target_link_options(Quillet PRIVATE -Wl,--enable-stdcall-fixup)
endif()

if(QUILLET_WINE_HARNESS AND EXISTS ${CMAKE_SOURCE_DIR}/tests/wine/CMakeLists.txt)
  add_subdirectory(${CMAKE_SOURCE_DIR}/tests/wine ${CMAKE_BINARY_DIR}/tests/wine)
endif()

# The comparison of the portable profile functions with the Windows ones, run under Wine by
# scripts/run-wine-tests.sh.
if(QUILLET_WINE_HARNESS AND EXISTS ${CMAKE_SOURCE_DIR}/tests/wine/profile)
  file(GLOB QUILLET_PROFILE_COMPARE_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/wine/profile/*.cpp)
  add_executable(quillet_profile_compare ${QUILLET_PROFILE_COMPARE_SOURCES})
  target_link_libraries(quillet_profile_compare PRIVATE quillet_win)
endif()
