# What find_package(KestrolinReaders) gives a project for firmware: the readers as the library
# kestrolin::readers. The project builds that itself, for its own target and with its own options.
get_property(_kestrolin_languages GLOBAL PROPERTY ENABLED_LANGUAGES)
if(NOT C IN_LIST _kestrolin_languages)
  set(KestrolinReaders_FOUND FALSE)
  set(KestrolinReaders_NOT_FOUND_MESSAGE
      "the readers are C, so that the project has to name C among its languages.")
elseif(NOT TARGET kestrolin_readers)
  get_filename_component(_kestrolin_readers "${CMAKE_CURRENT_LIST_DIR}/../../kestrolin/firmware" ABSOLUTE)
  add_subdirectory("${_kestrolin_readers}" "${CMAKE_BINARY_DIR}/kestrolin-readers" EXCLUDE_FROM_ALL)
  unset(_kestrolin_readers)
endif()
unset(_kestrolin_languages)
