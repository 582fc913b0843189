# kestrolin_add_sounds(NAME
#   FILES a.wav b.wav...             the recordings: one array each, of the file's name
#   [ENCODER speex|adpcm|pcm|wav]    pcm unless given
#   [DAC 8|10|12|16]                 the bits of the DAC; 16 unless given
#   [LANGUAGE C|C++] [CLASS name]    C unless given; in C++ the arrays are members of this class
#   [QUALITY 0..10] [COMPLEXITY 0..10] [BITRATE fixed|variable|average] [MAX_BITRATE n]
#   [NO_VAD] [NO_DENOISE] [NO_AGC]   for Speex
#   [NO_HEADER]                      arrays without their header, which the readers take
#   [FLASH]                          arrays in the flash of an AVR, by KESTROLIN_FLASH
#   [STATES]                         for ADPCM, the state NAME_state that each array is decoded from
#   [SETTINGS file]                  other defaults, from a settings file of the window
#   [OPTIONS option...])             more options of kestrolin-cli encode
#
# Adds a library NAME with these arrays. Who links it can include NAME.h, which declares the arrays and
# their sizes, and the headers of the readers. The arrays are made again when a recording has changed, an
# option, the settings file or kestrolin-cli, and only then.
#
# A relative path starts at the current source directory. A recording that the build makes lies in the
# build tree, or its rule stands before the call.

# What an option may be.
set(_KESTROLIN_ENCODER speex adpcm pcm wav)
set(_KESTROLIN_DAC 8 10 12 16)
set(_KESTROLIN_LANGUAGE C C++)
set(_KESTROLIN_QUALITY 0 1 2 3 4 5 6 7 8 9 10)
set(_KESTROLIN_COMPLEXITY ${_KESTROLIN_QUALITY})
set(_KESTROLIN_BITRATE fixed variable average)
set(_KESTROLIN_CHOICES ENCODER DAC LANGUAGE QUALITY COMPLEXITY BITRATE)

function(kestrolin_add_sounds name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "NO_VAD;NO_DENOISE;NO_AGC;NO_HEADER;FLASH;STATES"
                        "${_KESTROLIN_CHOICES};CLASS;MAX_BITRATE;SETTINGS" "FILES;OPTIONS")
  if(NOT DEFINED arg_LANGUAGE)
    # Whatever a settings file says.
    set(arg_LANGUAGE C)
  endif()
  _kestrolin_check_call()
  _kestrolin_find_files()
  _kestrolin_list_options()

  set(suffix c)
  if(arg_LANGUAGE STREQUAL "C++")
    set(suffix cpp)
  endif()
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/kestrolin/${name}")
  set(text "${folder}/${name}_data.${suffix}")
  set(header "${folder}/${name}.h")
  set(source "${folder}/${name}.${suffix}")
  set(depfile "${folder}/${name}.d")
  set(command "${KESTROLIN_CLI}" encode ${options} -o "${text}" --declarations "${header}" --source
              "${source}" --depfile "${depfile}" -- ${files})

  # Make sees no command that has changed, but a file that has. It tells the version too, since a program
  # that was installed is as old as its package.
  file(CONFIGURE OUTPUT "${folder}/command" CONTENT "@Kestrolin_VERSION@;@command@\n" @ONLY)

  # The recordings are in the depfile alone: of one that is gone kestrolin-cli tells more than make.
  add_custom_command(
    OUTPUT "${text}" "${header}" "${source}"
    COMMAND ${command}
    DEPENDS "${KESTROLIN_CLI}" "${folder}/command" ${made}
    DEPFILE "${depfile}"
    COMMENT "Encoding the sounds of ${name}"
    VERBATIM)

  if(NOT TARGET kestrolin_readers)
    add_subdirectory("${KESTROLIN_READERS}" "${CMAKE_BINARY_DIR}/kestrolin-readers" EXCLUDE_FROM_ALL)
  endif()
  add_library(${name} STATIC "${source}" "${header}")
  target_include_directories(${name} PUBLIC "${folder}")
  target_link_libraries(${name} PUBLIC kestrolin_readers)
endfunction()

# The functions below work on the variables of kestrolin_add_sounds.

function(_kestrolin_fail reason)
  message(FATAL_ERROR "kestrolin_add_sounds(${name}): ${reason}.")
endfunction()

function(_kestrolin_check_call)
  if(NOT name MATCHES "^[A-Za-z_][A-Za-z0-9_.+-]*$")
    _kestrolin_fail("the name of a library comes first")
  elseif(TARGET ${name})
    _kestrolin_fail("there is a target of this name already")
  elseif(arg_UNPARSED_ARGUMENTS)
    _kestrolin_fail("\"${arg_UNPARSED_ARGUMENTS}\" belongs to no option")
  elseif(arg_KEYWORDS_MISSING_VALUES)
    _kestrolin_fail("${arg_KEYWORDS_MISSING_VALUES} has no value")
  elseif(NOT arg_FILES)
    _kestrolin_fail("no FILES are given")
  elseif(arg_LANGUAGE STREQUAL "C++" AND NOT (arg_CLASS OR arg_SETTINGS))
    _kestrolin_fail("LANGUAGE C++ needs the name of a CLASS")
  elseif(DEFINED arg_MAX_BITRATE AND NOT arg_MAX_BITRATE MATCHES "^[0-9]+$")
    _kestrolin_fail("MAX_BITRATE is \"${arg_MAX_BITRATE}\" and has to be a number")
  endif()
  foreach(key IN LISTS _KESTROLIN_CHOICES)
    if(DEFINED arg_${key} AND NOT arg_${key} IN_LIST _KESTROLIN_${key})
      list(JOIN _KESTROLIN_${key} ", " choices)
      _kestrolin_fail("${key} is \"${arg_${key}}\" and has to be one of ${choices}")
    endif()
  endforeach()
  get_property(languages GLOBAL PROPERTY ENABLED_LANGUAGES)
  if(NOT C IN_LIST languages)
    _kestrolin_fail("the readers are C, so that the project has to name C among its languages")
  elseif(arg_LANGUAGE STREQUAL "C++" AND NOT CXX IN_LIST languages)
    _kestrolin_fail("LANGUAGE C++ needs a project that names CXX among its languages")
  endif()
endfunction()

# Sets `files`, the full paths of the recordings, `made`, those of them that the build makes, and
# arg_SETTINGS, a full path too.
function(_kestrolin_find_files)
  set(files "")
  set(made "")
  foreach(file IN LISTS arg_FILES arg_SETTINGS)
    get_filename_component(path "${file}" ABSOLUTE)
    get_source_file_property(is_generated "${path}" GENERATED)
    string(FIND "${path}" "${CMAKE_BINARY_DIR}/" in_build)
    list(APPEND files "${path}")
    if(is_generated OR in_build EQUAL 0)
      list(APPEND made "${path}")
    elseif(NOT EXISTS "${path}" OR IS_DIRECTORY "${path}")
      _kestrolin_fail("there is no file ${path}")
    endif()
  endforeach()
  if(DEFINED arg_SETTINGS)
    list(POP_BACK files arg_SETTINGS)
    set(arg_SETTINGS "${arg_SETTINGS}" PARENT_SCOPE)
  endif()
  set(files "${files}" PARENT_SCOPE)
  set(made "${made}" PARENT_SCOPE)
endfunction()

# Sets `options`, those of kestrolin-cli encode.
function(_kestrolin_list_options)
  string(TOLOWER "${arg_LANGUAGE}" arg_LANGUAGE)
  set(options "")
  foreach(key IN LISTS _KESTROLIN_CHOICES ITEMS CLASS MAX_BITRATE SETTINGS)
    if(DEFINED arg_${key})
      string(TOLOWER "--${key}" option)
      string(REPLACE "_" "-" option "${option}")
      list(APPEND options "${option}" "${arg_${key}}")
    endif()
  endforeach()
  foreach(flag IN ITEMS NO_VAD NO_DENOISE NO_AGC NO_HEADER FLASH STATES)
    if(arg_${flag})
      string(TOLOWER "--${flag}" option)
      string(REPLACE "_" "-" option "${option}")
      list(APPEND options "${option}")
    endif()
  endforeach()
  set(options ${options} ${arg_OPTIONS} PARENT_SCOPE)
endfunction()
