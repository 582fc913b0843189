# Read by CPack before anything else: the package bears the date of Debian's changelog, so that the same
# tree in the same place gives the same package at any time.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND dpkg-parsechangelog -l "${CPACK_KESTROLIN_DEBIAN}/changelog" -S Timestamp
    OUTPUT_VARIABLE _datum OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} "${_datum}")
endif()
