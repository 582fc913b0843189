# What find_package(Kestrolin) gives a project for firmware: kestrolin_add_sounds, told of at the top of
# KestrolinSounds.cmake beside this file.
#
# KESTROLIN_CLI is the command that encodes: a program of the machine that builds, whatever machine the
# project is built for, and of the same version as this file.
cmake_policy(VERSION 3.20)

get_filename_component(_kestrolin_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
set(KESTROLIN_READERS "${_kestrolin_prefix}/share/kestrolin/firmware")
find_program(
  KESTROLIN_CLI kestrolin-cli
  HINTS "${_kestrolin_prefix}/bin"
  DOC "The command that makes arrays of recordings"
  NO_CMAKE_FIND_ROOT_PATH)
unset(_kestrolin_prefix)

set(_kestrolin_said "")
if(KESTROLIN_CLI)
  execute_process(
    COMMAND "${KESTROLIN_CLI}" --version
    OUTPUT_VARIABLE _kestrolin_said OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT _kestrolin_said STREQUAL "kestrolin-cli ${Kestrolin_VERSION}")
  set(Kestrolin_FOUND FALSE)
  set(Kestrolin_NOT_FOUND_MESSAGE
      "KESTROLIN_CLI is ${KESTROLIN_CLI}, which is no kestrolin-cli ${Kestrolin_VERSION}; set it to one.")
  return()
endif()

include("${CMAKE_CURRENT_LIST_DIR}/KestrolinSounds.cmake")
