# The licences of all that the programs and the installer hold, as Debian states them, and the source of the one
# library that asks for it. What a statement leaves to the common licences of a Debian system comes along too.
set(_licenties "${CMAKE_CURRENT_BINARY_DIR}/licences")
set(_uit_bron wxwidgets3.2 libsndfile speex speexdsp)
set(_van_machine libcli11-dev nlohmann-json3-dev libkissfft-dev mingw-w64-x86-64-dev
                 gcc-mingw-w64-x86-64-posix nsis-common)

# voeg_licentie_toe(naam bron): the statement BRON as NAME.txt, and the licences that it refers to.
function(voeg_licentie_toe naam bron)
  file(COPY_FILE "${bron}" "${_licenties}/${naam}.txt")
  file(STRINGS "${bron}" regels REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]" gedeeld "${regels}")
  foreach(licentie IN LISTS gedeeld)
    cmake_path(GET licentie FILENAME kort)
    file(COPY_FILE "${licentie}" "${_licenties}/${kort}.txt")
  endforeach()
endfunction()

file(REMOVE_RECURSE "${_licenties}")
file(MAKE_DIRECTORY "${_licenties}")
file(READ "${KESTROLIN_WINDOWS}/share/licenties/versies" _versies)
foreach(_naam IN LISTS _uit_bron)
  string(REGEX MATCH "\n${_naam} +([^ ]+)" _regel "${_versies}")
  set(VERSIE_${_naam} "${CMAKE_MATCH_1}")
  voeg_licentie_toe("${_naam}" "${KESTROLIN_WINDOWS}/share/licenties/${_naam}")
endforeach()
foreach(_naam IN LISTS _van_machine)
  execute_process(COMMAND dpkg-query -W -f "\${Version}" "${_naam}" OUTPUT_VARIABLE VERSIE_${_naam}
                  COMMAND_ERROR_IS_FATAL ANY)
  voeg_licentie_toe("${_naam}" "/usr/share/doc/${_naam}/copyright")
endforeach()
file(COPY_FILE "${KESTROLIN_WINDOWS}/share/licenties/libsndfile.tar.xz" "${_licenties}/libsndfile.tar.xz")

configure_file(licences.txt.in "${_licenties}/README.txt" @ONLY NEWLINE_STYLE DOS)
install(DIRECTORY "${_licenties}" DESTINATION "${doc}")
