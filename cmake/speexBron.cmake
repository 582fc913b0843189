# libspeex and libspeexdsp built here, from the sources in the folder KESTROLIN_SPEEX (as hulp/speexBron
# leaves them in build/bronnen), in place of the installed ones. Debian's encoder gives other bits on
# each processor: for amd64 it sums in four lanes, elsewhere one by one, and some processors multiply
# and add in one rounding. This one gives those of amd64 on every processor.
file(GLOB _speexMap "${KESTROLIN_SPEEX}/speex-[0-9]*")
file(GLOB _speexdspMap "${KESTROLIN_SPEEX}/speexdsp-[0-9]*")
list(LENGTH _speexMap _aantal)
list(LENGTH _speexdspMap _aantalDsp)
if(NOT _aantal EQUAL 1 OR NOT _aantalDsp EQUAL 1)
  message(FATAL_ERROR "KESTROLIN_SPEEX: no one speex-VERSION and speexdsp-VERSION in ${KESTROLIN_SPEEX}")
endif()

# What the configuration of these libraries would write.
set(_koppen "${CMAKE_BINARY_DIR}/speex")
set(_typen "#include <stdint.h>\ntypedef int16_t spx_int16_t;\ntypedef uint16_t spx_uint16_t;
typedef int32_t spx_int32_t;\ntypedef uint32_t spx_uint32_t;\n")
file(CONFIGURE OUTPUT "${_koppen}/speex_config_types.h" CONTENT "${_typen}")
file(CONFIGURE OUTPUT "${_koppen}/speexdsp_config_types.h" CONTENT "${_typen}")

# _voeg_speex_toe(naam map zonder): the library of the sources in the map, but for those of `zonder`.
function(_voeg_speex_toe naam map zonder)
  file(GLOB _bronnen "${map}/lib${naam}/*.c")
  list(FILTER _bronnen EXCLUDE REGEX "/(test[a-z0-9_]*|${zonder})\\.c$")
  add_library(${naam}Bron STATIC ${_bronnen})
  target_include_directories(${naam}Bron SYSTEM PUBLIC "${map}/include" "${_koppen}")
  target_include_directories(${naam}Bron PRIVATE "${map}/lib${naam}")
  string(REGEX REPLACE ".*-" "" _versie "${map}")
  target_compile_definitions(
    ${naam}Bron PRIVATE FLOATING_POINT USE_SMALLFT VAR_ARRAYS EXPORT= SPEEX_VERSION="${_versie}"
                        SPEEX_MAJOR_VERSION=1 SPEEX_MINOR_VERSION=2 SPEEX_MICRO_VERSION=1
                        SPEEX_EXTRA_VERSION="")
  # The warnings of others' code are their own affair.
  target_compile_options(${naam}Bron PRIVATE -w -O2 -ffp-contract=off)
  target_link_libraries(${naam}Bron PUBLIC m)
  set_target_properties(${naam}Bron PROPERTIES C_EXTENSIONS ON)
  bewaak(${naam}Bron)
  add_library(PkgConfig::${naam} ALIAS ${naam}Bron)
endfunction()

_voeg_speex_toe(speex "${_speexMap}" "kiss_fftr?|vorbis_psy")
_voeg_speex_toe(speexdsp "${_speexdspMap}" "kiss_fftr?|vorbis_psy")

# The four lanes: those of the processor where it has them, else SIMDe's of the same meaning.
target_compile_definitions(speexBron PRIVATE _USE_SSE)
include(CheckIncludeFile)
check_include_file(xmmintrin.h KESTROLIN_XMMINTRIN)
if(NOT KESTROLIN_XMMINTRIN)
  find_path(KESTROLIN_SIMDE simde/x86/sse.h REQUIRED)
  mark_as_advanced(KESTROLIN_SIMDE)
  file(CONFIGURE OUTPUT "${_koppen}/sse/xmmintrin.h" CONTENT
       "#define SIMDE_ENABLE_NATIVE_ALIASES\n#include <simde/x86/sse.h>\n")
  target_include_directories(speexBron SYSTEM PRIVATE "${_koppen}/sse" "${KESTROLIN_SIMDE}")
endif()
