# What `cpack` makes: a .deb and a .tar.gz on Linux, a .zip and an installer for Windows
set(CPACK_PACKAGE_NAME corvel)
set(CPACK_PACKAGE_VENDOR Lumatic)
set(CPACK_PACKAGE_CONTACT "Lumatic <corvel@lumatic.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "channel strip for voices: VST effect and command-line host")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${CMAKE_CURRENT_SOURCE_DIR}/description.txt)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# Whatever the user's umask is
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

if(WIN32)
    set(CPACK_GENERATOR ZIP NSIS)
    set(CPACK_PACKAGE_FILE_NAME corvel-${PROJECT_VERSION}-windows-x86_64)
    set(CPACK_PACKAGE_INSTALL_DIRECTORY Corvel)
    set(CPACK_NSIS_DISPLAY_NAME Corvel)
    # Our NSIS.template.in, since CMake's installs programs into a folder of their own.
    list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_SOURCE_DIR}/windows)
else()
    set(CPACK_GENERATOR DEB TGZ)
    set(CPACK_PACKAGE_FILE_NAME corvel-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
    set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/linux/DebianLayout.cmake)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION sound)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    # Opened at run time, so they are not found by themselves.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "libcairo2, libjack-jackd2-0 | libjack-0.125")
    # The theme's mouse pointers, the button Help and the window's text
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libxcb-cursor0, xdg-utils, fonts-liberation")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endif()
include(CPack)
