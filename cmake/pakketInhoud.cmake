# Run by CPack over what was installed for the package, before it is packed: the programs and the module without what
# only a debugger reads, and the documents and completions in the place and the form that Debian has for
# them.
file(GLOB _programmas "${CPACK_TEMPORARY_DIRECTORY}/usr/bin/*"
     "${CPACK_TEMPORARY_DIRECTORY}/usr/lib/kestrolin/*.so")
execute_process(COMMAND "${CPACK_KESTROLIN_STRIP}" --remove-section=.comment
                        --remove-section=.note ${_programmas}
                COMMAND_ERROR_IS_FATAL ANY)

# Debian's zsh looks into site-functions below /usr/local alone.
set(_zsh "${CPACK_TEMPORARY_DIRECTORY}/usr/share/zsh")
file(RENAME "${_zsh}/site-functions" "${_zsh}/vendor-completions")

set(_doc "${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/kestrolin")

# pak_in(bestand): BESTAND.gz in its place, the same for the same content.
function(pak_in bestand)
  execute_process(COMMAND gzip -9n "${bestand}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(RENAME "${_doc}/CHANGELOG.md" "${_doc}/changelog")
pak_in("${_doc}/changelog")
file(COPY_FILE "${CPACK_KESTROLIN_DEBIAN}/changelog" "${_doc}/changelog.Debian")
pak_in("${_doc}/changelog.Debian")
# It stands in there.
file(REMOVE "${_doc}/LICENSE")
file(COPY_FILE "${CPACK_KESTROLIN_DEBIAN}/copyright" "${_doc}/copyright")

# By this the system's list of documents has the manual.
set(_lijst "${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc-base")
file(MAKE_DIRECTORY "${_lijst}")
file(COPY_FILE "${CPACK_KESTROLIN_DEBIAN}/doc-base" "${_lijst}/kestrolin.kestrolin")

set(_afwijkingen "${CPACK_TEMPORARY_DIRECTORY}/usr/share/lintian/overrides")
file(MAKE_DIRECTORY "${_afwijkingen}")
file(COPY_FILE "${CPACK_KESTROLIN_DEBIAN}/lintian-overrides" "${_afwijkingen}/kestrolin")

# Whatever rights the source tree has.
execute_process(COMMAND chmod -R u=rwX,go=rX "${CPACK_TEMPORARY_DIRECTORY}/usr"
                COMMAND_ERROR_IS_FATAL ANY)
