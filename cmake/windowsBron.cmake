# What a program for Windows carries beside its code: icon, version, and the manifest, by which the system
# knows what the program can do. The toolkit's own resources come along.

# The build tree has the shape of an installation: the library beside the programs, and the toolkit's own
# catalogs beside theirs.
if(WIN32)
  file(GLOB _bestanden RELATIVE "${KESTROLIN_WINDOWS}" "${KESTROLIN_WINDOWS}/bin/*.dll"
       "${KESTROLIN_WINDOWS}/share/locale/*/LC_MESSAGES/*.mo")
  foreach(_bestand IN LISTS _bestanden)
    configure_file("${KESTROLIN_WINDOWS}/${_bestand}" "${CMAKE_BINARY_DIR}/${_bestand}" COPYONLY)
  endforeach()
endif()

# geef_bron(doel beschrijving): elsewhere nothing happens.
function(geef_bron doel beschrijving)
  if(NOT WIN32)
    return()
  endif()
  set(_map "${PROJECT_SOURCE_DIR}/cmake")
  set(ICO "${CMAKE_BINARY_DIR}/kestrolin.ico")
  set(MANIFEST "${CMAKE_CURRENT_BINARY_DIR}/${doel}.manifest")
  set(DOEL ${doel})
  set(BESCHRIJVING "${beschrijving}")
  string(REPLACE "." "," CIJFERS "${PROJECT_VERSION}.0")
  configure_file("${_map}/programma.manifest.in" "${MANIFEST}" @ONLY)
  configure_file("${_map}/programma.rc.in" "${doel}.rc" @ONLY)
  target_sources(${doel} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${doel}.rc")
  set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${doel}.rc"
                              PROPERTIES OBJECT_DEPENDS "${ICO};${MANIFEST}")
  add_dependencies(${doel} pictogrammen)
endfunction()
