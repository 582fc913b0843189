# Makes the installer of what stands below a folder. What is below it now, and no more, is what the uninstaller
# takes away.
#
#   cmake -D MAP=FOLDER -D VERSIE=NUMBER -D ICOON=FILE -D RAND=FILE -D UIT=FILE -D MAKENSIS=PROGRAM
#         -P maakInstaller.cmake
#
# RAND is the picture beside the last page.
cmake_policy(VERSION 3.25)

file(GLOB_RECURSE _bestanden LIST_DIRECTORIES FALSE RELATIVE "${MAP}" "${MAP}/*")
list(SORT _bestanden)
if(NOT _bestanden)
  message(FATAL_ERROR "there is nothing below ${MAP}")
endif()

set(_mappen "")
set(_plaats "")
set(_kijk "")
set(_verwijder "")
set(_ruim "")
set(_vorige "")
foreach(_bestand IN LISTS _bestanden)
  cmake_path(GET _bestand PARENT_PATH _map)
  string(REPLACE "/" "\\" _doel "${_bestand}")
  string(REPLACE "/" "\\" _doelMap "${_map}")
  if(NOT _map STREQUAL _vorige)
    string(APPEND _plaats "  SetOutPath \"$INSTDIR\\${_doelMap}\"\n")
    set(_vorige "${_map}")
  endif()
  string(APPEND _plaats "  File \"${MAP}/${_bestand}\"\n")
  string(APPEND _kijk "  !insertmacro KijkOfVrij \"$INSTDIR\\${_doel}\"\n")
  string(APPEND _verwijder "  Delete \"$INSTDIR\\${_doel}\"\n")
  while(_map)
    list(APPEND _mappen "${_map}")
    cmake_path(GET _map PARENT_PATH _map)
  endwhile()
endforeach()

# The deepest come first: only an empty folder goes.
list(REMOVE_DUPLICATES _mappen)
list(SORT _mappen ORDER DESCENDING)
foreach(_map IN LISTS _mappen)
  string(REPLACE "/" "\\" _doel "${_map}")
  string(APPEND _ruim "  RMDir \"$INSTDIR\\${_doel}\"\n")
endforeach()

set(_lijst "${UIT}.nsh")
file(WRITE "${_lijst}" "!macro PLAATS_BESTANDEN\n${_plaats}!macroend\n"
                       "!macro KIJK_BESTANDEN\n${_kijk}!macroend\n"
                       "!macro VERWIJDER_BESTANDEN\n${_verwijder}!macroend\n"
                       "!macro VERWIJDER_MAPPEN\n${_ruim}!macroend\n")

# It says nothing of a stub that no system starts, but of all else: a warning is an error.
file(REMOVE "${UIT}")
execute_process(
  COMMAND "${MAKENSIS}" -V2 -WX -INPUTCHARSET UTF8 "-DVERSIE=${VERSIE}" "-DBESTANDEN=${_lijst}"
          "-DLICENTIE=${MAP}/share/doc/kestrolin/LICENSE" "-DICOON=${ICOON}" "-DRAND=${RAND}" "-DUIT=${UIT}"
          "${CMAKE_CURRENT_LIST_DIR}/kestrolin.nsi"
  COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${UIT}")
  message(FATAL_ERROR "${MAKENSIS} made no ${UIT}")
endif()
