# 32-bit Windows.
set(veritane_architecture i686)
# Numbers are those of the 64-bit program: of the width that they are stored in, as every processor has them that
# Windows 10 runs on. Windows calls back with a stack that need not be aligned for them.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/toolchain.cmake)
