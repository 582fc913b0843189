# The headers that most tests include, compiled once for all of them: nearly half of the time that
# building the tests takes. Only where asked for, which CI does: a file that forgets an include still
# compiles so, and clang-tidy cannot read what gcc compiled.
option(KESTROLIN_PCH "Compile the headers of the tests beforehand" OFF)

# The targets of a directory and of those below it.
function(_doelen_onder map uit)
  get_property(_doelen DIRECTORY "${map}" PROPERTY BUILDSYSTEM_TARGETS)
  get_property(_mappen DIRECTORY "${map}" PROPERTY SUBDIRECTORIES)
  foreach(_map IN LISTS _mappen)
    _doelen_onder("${_map}" _onder)
    list(APPEND _doelen ${_onder})
  endforeach()
  set(${uit} ${_doelen} PARENT_SCOPE)
endfunction()

# compileer_vooraf(MAP map... LIB bibliotheek HEADERS kop...): for every program and library of these
# directories and of those below them. All of them link the library, and have the options of the
# directory that calls.
function(compileer_vooraf)
  cmake_parse_arguments(_vooraf "" "LIB" "MAP;HEADERS" ${ARGN})
  if(NOT KESTROLIN_PCH)
    return()
  endif()
  set(_bron "${CMAKE_CURRENT_BINARY_DIR}/vooraf.cpp")
  file(WRITE "${_bron}" "// Nothing: its headers are what counts.\n")
  set(_koppen vooraf_${_vooraf_LIB})
  add_library(${_koppen} STATIC "${_bron}")
  target_link_libraries(${_koppen} PRIVATE bouwOpties ${_vooraf_LIB} GTest::gtest)
  target_precompile_headers(${_koppen} PRIVATE ${_vooraf_HEADERS})
  foreach(_map IN LISTS _vooraf_MAP)
    _doelen_onder("${CMAKE_CURRENT_SOURCE_DIR}/${_map}" _doelen)
    foreach(_doel IN LISTS _doelen)
      get_target_property(_soort ${_doel} TYPE)
      if(_soort MATCHES "EXECUTABLE|STATIC_LIBRARY|OBJECT_LIBRARY")
        target_precompile_headers(${_doel} REUSE_FROM ${_koppen})
      endif()
    endforeach()
  endforeach()
endfunction()
