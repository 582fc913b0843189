# Toolchain file for another processor, with Debian's cross compilers: -DKESTROLIN_PROCESSOR=arm64 (or
# s390x) -DKESTROLIN_SYSROOT=FOLDER, which holds the libraries of that processor. hulp/processor makes it
# and calls cmake. Nothing of this machine is found but programs that run here.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTROLIN_PROCESSOR KESTROLIN_SYSROOT)

set(_naam_arm64 aarch64)
set(_naam_s390x s390x)
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${_naam_${KESTROLIN_PROCESSOR}})
set(_drietal ${CMAKE_SYSTEM_PROCESSOR}-linux-gnu)

set(CMAKE_C_COMPILER ${_drietal}-gcc)
set(CMAKE_CXX_COMPILER ${_drietal}-g++)
set(CMAKE_SYSROOT "${KESTROLIN_SYSROOT}")
set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-${CMAKE_SYSTEM_PROCESSOR}-static;-L;${KESTROLIN_SYSROOT}")

set(CMAKE_FIND_ROOT_PATH "${KESTROLIN_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Read by pkg-config, which cmake calls.
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${KESTROLIN_SYSROOT}")
set(ENV{PKG_CONFIG_LIBDIR}
    "${KESTROLIN_SYSROOT}/usr/lib/${_drietal}/pkgconfig:${KESTROLIN_SYSROOT}/usr/share/pkgconfig")
set(wxWidgets_CONFIG_EXECUTABLE
    "${KESTROLIN_SYSROOT}/usr/lib/${_drietal}/wx/config/gtk3-unicode-3.2" CACHE FILEPATH "")
set(wxWidgets_CONFIG_OPTIONS "--prefix=${KESTROLIN_SYSROOT}/usr" CACHE STRING "")
