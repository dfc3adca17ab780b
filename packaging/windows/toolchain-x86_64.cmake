# 64-bit Windows.
set(veritane_architecture x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain.cmake)
