# What a program for Windows carries beside its code: icon, version, and the manifest, by which the system
# knows what the program can do. The toolkit's own resources come along.

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
