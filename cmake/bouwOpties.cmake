# What every target of the tree is built with: the language, the warnings and, where asked for, the
# sanitizers. Targets take it by linking `bouwOpties`.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# What runs on the target.
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)

# The presets ask for it. Elsewhere a newer compiler, which warns of more, must not stop the build.
option(KESTROLIN_WERROR "Warnings of the compiler are errors" OFF)
option(KESTROLIN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(KESTROLIN_FUZZ "Build the fuzz targets, and all code for them: needs clang++" OFF)

add_library(bouwOpties INTERFACE)
target_include_directories(bouwOpties INTERFACE "${PROJECT_SOURCE_DIR}")
# The compiler of Windows' resources knows none of these.
set(_opties
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Wsign-conversion
    -Wcast-qual
    -Wformat=2
    "$<$<BOOL:${KESTROLIN_WERROR}>:-Werror>"
    # Each operation rounds by itself, also where the processor could do two at once: results must not
    # differ from machine to machine.
    -ffp-contract=off)
target_compile_options(
  bouwOpties
  INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:${_opties}>"
            "$<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast;-Wnon-virtual-dtor;-Woverloaded-virtual>")

if(WIN32)
  # What checks a buffer lies in a library there, for whatever links a room.
  target_link_options(bouwOpties INTERFACE -fstack-protector-strong)
endif()

if(KESTROLIN_SANITIZE)
  set(_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_compile_options(bouwOpties INTERFACE ${_sanitizers} -fno-omit-frame-pointer)
  target_link_options(bouwOpties INTERFACE ${_sanitizers})
endif()

if(KESTROLIN_FUZZ)
  # The fuzz targets alone link the engine, which brings a main along.
  target_compile_options(bouwOpties INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                              -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(bouwOpties INTERFACE -fsanitize=address,undefined)
endif()

# What users run opens files of anybody's making: the guards of the compiler and the linker stand by.
include(CheckPIESupported)
check_pie_supported()

# bewaak(doel): for what an installation holds. Not for tests, which are not optimised: the guard of
# buffers does nothing there and says so.
function(bewaak doel)
  set_target_properties(${doel} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(NOT KESTROLIN_SANITIZE)
    set(_wachten "$<AND:$<CONFIG:Release>,$<COMPILE_LANGUAGE:C,CXX>>")
    target_compile_options(${doel} PRIVATE "$<${_wachten}:-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
    # -z is ELF's.
    if(NOT WIN32)
      target_link_options(${doel} PRIVATE "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
    endif()
  endif()
endfunction()

# What each system does in its own way stands in a file of its own: NAME${systeem} in a list of sources.
if(WIN32)
  set(systeem Windows.cpp)
else()
  set(systeem Posix.cpp)
endif()

# voeg_kamer_toe(naam bron...): one folder's static library, built with the shared options.
function(voeg_kamer_toe naam)
  add_library(${naam} STATIC ${ARGN})
  target_link_libraries(${naam} PUBLIC bouwOpties)
  bewaak(${naam})
  if(KESTROLIN_SANITIZE)
    # Optimised a little, so that the tests keep within CI's time.
    target_compile_options(${naam} PRIVATE -O1)
  endif()
endfunction()
