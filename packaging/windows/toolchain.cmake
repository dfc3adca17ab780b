# Cross-compiling for Windows with MinGW-w64 (POSIX threads, everything of the compiler linked in). The toolchain files
# beside this one set veritane_architecture and include it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${veritane_architecture})
set(veritane_host ${veritane_architecture}-w64-mingw32)

set(CMAKE_C_COMPILER ${veritane_host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${veritane_host}-g++-posix)
set(CMAKE_RC_COMPILER ${veritane_host}-windres)
# A program needs the system's DLLs, none of the compiler's, and no symbols.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -s")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static -s")

# What packaging/windows/build_libraries has made. This system's own headers and libraries are never looked at.
file(GLOB veritane_links ${CMAKE_CURRENT_LIST_DIR}/../../build/windows/libraries-${veritane_architecture}/*)
set(veritane_libraries)
foreach(veritane_link IN LISTS veritane_links)
  file(REAL_PATH ${veritane_link} veritane_library)
  list(APPEND veritane_libraries ${veritane_library})
endforeach()
set(CMAKE_FIND_ROOT_PATH ${veritane_libraries} /usr/${veritane_host})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(veritane_pkgconfig ${veritane_libraries} /usr/${veritane_host})
list(TRANSFORM veritane_pkgconfig APPEND /lib/pkgconfig)
list(JOIN veritane_pkgconfig ":" veritane_pkgconfig)
set(ENV{PKG_CONFIG_LIBDIR} ${veritane_pkgconfig})
set(PKG_CONFIG_ARGN --static)
# The library that the PDF library needs is looked for by name, and its DLL would be found first.
set(pkgcfg_lib_cairo_z /usr/${veritane_host}/lib/libz.a CACHE FILEPATH "zlib, linked in" FORCE)
file(GLOB wxWidgets_CONFIG_EXECUTABLE
     ${CMAKE_CURRENT_LIST_DIR}/../../build/windows/libraries-${veritane_architecture}/wxwidgets/bin/wx-config)

# Debian's own, which the tests find wherever they are run.
set(Python3_EXECUTABLE /usr/bin/python3)
find_program(veritane_wine wine)
if(veritane_wine)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run_under_wine)
endif()
