# 32-bit Windows.
set(veritane_architecture i686)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain.cmake)
