# The outside libraries as targets. `wxBasis` is the toolkit without windows, `wxVenster` the whole: a
# program of rooms that take only wxBasis does not link once one of them grows a window. Headers count
# as system headers, so that our warnings stay ours.

# A toolchain of another system says where its libraries are; this machine's are of no use there.
find_package(PkgConfig REQUIRED)
if(CMAKE_CROSSCOMPILING AND NOT DEFINED ENV{PKG_CONFIG_LIBDIR})
  message(FATAL_ERROR "pkg-config would find this machine's libraries: set PKG_CONFIG_LIBDIR")
endif()
pkg_check_modules(sndfile REQUIRED IMPORTED_TARGET sndfile)
set(KESTROLIN_SPEEX "" CACHE PATH "Sources of libspeex and libspeexdsp, in place of the libraries")
if(KESTROLIN_SPEEX)
  include(speexBron)
else()
  pkg_check_modules(speex REQUIRED IMPORTED_TARGET speex)
  pkg_check_modules(speexdsp REQUIRED IMPORTED_TARGET speexdsp)
endif()
# Not needed, but without it little can be heard.
option(KESTROLIN_SDL "Play sound through SDL where it is installed" ON)
if(KESTROLIN_SDL)
  pkg_check_modules(sdl2 IMPORTED_TARGET sdl2>=2.0.14)
endif()

function(_maak_wx_doel doel)
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS ${ARGN})
  add_library(${doel} INTERFACE)
  target_include_directories(${doel} SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(${doel} INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(${doel} INTERFACE ${wxWidgets_CXX_FLAGS})
  target_link_libraries(${doel} INTERFACE ${wxWidgets_LIBRARIES})
endfunction()

if(WIN32)
  # The toolkit's own description, which tells the libraries of Windows too.
  find_package(wxWidgets 3.2 CONFIG REQUIRED COMPONENTS core base)
  add_library(wxBasis INTERFACE)
  target_link_libraries(wxBasis INTERFACE wx::base)
  add_library(wxVenster INTERFACE)
  target_link_libraries(wxVenster INTERFACE wx::core wx::base)
else()
  _maak_wx_doel(wxBasis base)
  _maak_wx_doel(wxVenster core base)
endif()

# What the toolkit stands on here, for what of it goes through no function of the toolkit's. Not needed,
# but without it screen readers are told less.
get_target_property(_wxMappen wxVenster INTERFACE_INCLUDE_DIRECTORIES)
if(_wxMappen MATCHES "gtk3")
  pkg_check_modules(gtk3 gtk+-3.0)
endif()
if(gtk3_FOUND)
  add_library(gtk INTERFACE)
  target_include_directories(gtk SYSTEM INTERFACE ${gtk3_INCLUDE_DIRS})
  target_link_directories(gtk INTERFACE ${gtk3_LIBRARY_DIRS})
  # Of all that GTK names, the libraries that are called: a package depends on them.
  target_link_libraries(gtk INTERFACE gtk-3 gdk-3 atk-1.0 cairo gobject-2.0 glib-2.0)
endif()
