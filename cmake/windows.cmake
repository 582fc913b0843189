# The toolchain for Windows, 64 bits: Debian's cross compiler and the libraries that hulp/windowsGereedschap
# made. Threads are those of POSIX (winpthreads, linked in), which the standard library's classes need.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_keten x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_keten}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_keten}-g++-posix)
set(CMAKE_RC_COMPILER ${_keten}-windres)

# A link to the folder of the libraries.
set(KESTROLIN_WINDOWS "${CMAKE_CURRENT_LIST_DIR}/../build/windows-gereedschap")
cmake_path(NORMAL_PATH KESTROLIN_WINDOWS)

# Programs of the build run here; libraries and headers of this machine are never taken.
set(CMAKE_FIND_ROOT_PATH "${KESTROLIN_WINDOWS}" "/usr/${_keten}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The folder moves as a whole, and knows its own place.
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)
set(PKG_CONFIG_ARGN --define-prefix)
set(ENV{PKG_CONFIG_PATH} "")
set(ENV{PKG_CONFIG_LIBDIR} "${KESTROLIN_WINDOWS}/lib/pkgconfig")

# No library of the compiler's lies beside the programs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static-libgcc")
