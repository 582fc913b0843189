# What an installation has where programs share the folders of the system: the menu entry and the description
# for software centres, each put together from its source and the translations, the man pages, and the
# completions of shells.
find_package(Gettext REQUIRED)
find_program(GZIP gzip REQUIRED)

set(talen nl de fr it es)

# msgfmt takes the catalogs of all languages from one folder.
set(po "${CMAKE_CURRENT_BINARY_DIR}/po")
set(catalogi "")
foreach(taal IN LISTS talen)
  set(bron "${PROJECT_SOURCE_DIR}/vertalingen/${taal}/Pakket.po")
  add_custom_command(
    OUTPUT "${po}/${taal}.po"
    COMMAND "${CMAKE_COMMAND}" -E copy "${bron}" "${po}/${taal}.po"
    DEPENDS "${bron}"
    VERBATIM)
  list(APPEND catalogi "${po}/${taal}.po")
endforeach()
list(JOIN talen "\n" _linguas)
file(CONFIGURE OUTPUT "${po}/LINGUAS" CONTENT "@_linguas@\n" @ONLY)

# vertaal_bestand(SOORT bron doel): the file with its texts in all languages.
function(vertaal_bestand soort bron doel)
  add_custom_command(
    OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${doel}"
    COMMAND "${GETTEXT_MSGFMT_EXECUTABLE}" --${soort} --template
            "${CMAKE_CURRENT_SOURCE_DIR}/${bron}" -d "${po}" -o
            "${CMAKE_CURRENT_BINARY_DIR}/${doel}"
    DEPENDS "${bron}" ${catalogi} "${po}/LINGUAS"
    VERBATIM)
endfunction()

# A desktop knows the entry and the description for one program by their one id.
set(id example.kestrolin.kestrolin)
vertaal_bestand(desktop Kestrolin.desktop ${id}.desktop)
vertaal_bestand(xml kestrolin.metainfo.xml ${id}.metainfo.xml)

set(manpaginas "")
foreach(pagina IN ITEMS Kestrolin.1 kestrolin-cli.1)
  set(gepakt "${CMAKE_CURRENT_BINARY_DIR}/${pagina}.gz")
  add_custom_command(
    OUTPUT "${gepakt}"
    COMMAND "${GZIP}" -9nc "${CMAKE_CURRENT_SOURCE_DIR}/${pagina}" > "${gepakt}"
    DEPENDS "${pagina}"
    VERBATIM)
  list(APPEND manpaginas "${gepakt}")
endforeach()

add_custom_target(
  menu ALL
  DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/${id}.desktop" "${CMAKE_CURRENT_BINARY_DIR}/${id}.metainfo.xml"
          ${manpaginas})
add_dependencies(Kestrolin menu)

install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${id}.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${id}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES ${manpaginas} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# Who types the name in small letters finds the window, and its page. Elsewhere the two names are one.
if(UNIX AND NOT APPLE)
  set(klein "${CMAKE_CURRENT_BINARY_DIR}/klein")
  file(MAKE_DIRECTORY "${klein}")
  file(CREATE_LINK Kestrolin "${klein}/kestrolin" SYMBOLIC)
  file(CREATE_LINK Kestrolin.1.gz "${klein}/kestrolin.1.gz" SYMBOLIC)
  install(FILES "${klein}/kestrolin" DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(FILES "${klein}/kestrolin.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endif()

# Where each shell looks for what completes a command.
install(FILES completions/kestrolin-cli.bash DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
        RENAME kestrolin-cli)
install(FILES completions/_kestrolin-cli DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
install(FILES completions/kestrolin-cli.fish
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")

# Who looks for documents finds the pages by a link.
file(CREATE_LINK ../../kestrolin/docs "${CMAKE_CURRENT_BINARY_DIR}/manual" SYMBOLIC)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/manual" DESTINATION "${doc}")
