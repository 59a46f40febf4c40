# Cross build for 64-bit Windows with Debian's mingw-w64 (package g++-mingw-w64-x86-64-posix).
# The posix flavour is the one whose libstdc++ has std::thread and friends.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(mingw_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${mingw_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Everything static, so that a program runs from any folder (and under Wine) without
# libstdc++, libgcc or winpthread DLLs beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
