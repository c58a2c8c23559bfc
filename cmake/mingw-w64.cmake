# Cross-builds for 64-bit Windows; the programs run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The posix variant supports std::thread. GoogleTest's project needs a C compiler as well.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Windows aligns the stack to 16 bytes only, but the compiler saves AVX registers there with aligned
# 32-byte moves. The assembler turns these into unaligned ones.
set(CMAKE_CXX_FLAGS_INIT "-Wa,-muse-unaligned-vector-move")

# Linked statically, so that users need no run-time libraries.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh ${CMAKE_BINARY_DIR}/wineprefix)
