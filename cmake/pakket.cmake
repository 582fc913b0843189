# The Debian package: cmake --build BUILD --target package. It holds what `cmake --install` installs,
# with what Debian asks for put in place by pakketInhoud.cmake.

# Windows takes no such package.
if(WIN32)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrolin)
set(CPACK_PACKAGE_VENDOR "The Kestrolin team")
set(CPACK_PACKAGE_CONTACT "The Kestrolin team <team@kestrolin.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://kestrolin.example")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn WAV fragments into source arrays for firmware")
set(CPACK_PACKAGE_DESCRIPTION
    "Kestrolin turns short WAV fragments into C or C++ source text. A
microcontroller program compiles that text in and plays it through a DAC. The
arrays are compressed with Speex or with 4-bit ADPCM, plain PCM, or whole WAV
files, scaled to the width of the DAC.
.
The window, Kestrolin, is for trying out and listening. The command,
kestrolin-cli, makes the same text in a build, and needs no display. A CMake
package and completions for shells come with it.
.
The package brings the readers of these arrays in portable C, ready to be
copied into a project, and a manual that describes every byte of the formats.")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/pakketInhoud.cmake")
set(CPACK_KESTROLIN_DEBIAN "${PROJECT_SOURCE_DIR}/packaging/debian")
set(CPACK_KESTROLIN_STRIP "${CMAKE_STRIP}")
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/pakketDatum.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
# Empty where it is that of this machine, which dpkg tells then.
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${KESTROLIN_PROCESSOR})
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# A language of the program needs its locale, which the package locales makes where the user asks for it;
# the toolkit's own texts come from wx3.2-i18n. Both can be left out by who is content with English.
# locales-all has every locale of the world, and is a hundred times as large as this package.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "locales | locales-all, wx3.2-i18n")
# What the first hour with a result asks for.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
    "gcc-arm-none-eabi, libnewlib-arm-none-eabi, qemu-system-arm, sox")

# All there is, under the name that CMake has for what is in no component: the list of files of a user's
# own `cmake --install` is left alone so.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};Unspecified;/")

include(CPack)
