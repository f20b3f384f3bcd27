# The Windows target: Debian's cross compiler with its POSIX threads, which std::thread and std::mutex stand on.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(kereszt x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${kereszt}-gcc-posix)
set(CMAKE_CXX_COMPILER ${kereszt}-g++-posix)
set(CMAKE_ASM_COMPILER ${kereszt}-gcc-posix)
set(CMAKE_RC_COMPILER ${kereszt}-windres)

# Headers and libraries come from the target's own folder, programs from this machine. Packages are looked for in both, as
# those of Qt stand where they were built.
set(CMAKE_FIND_ROOT_PATH /usr/${kereszt})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
