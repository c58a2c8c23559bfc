# Where `cmake --install` puts things, below CMAKE_INSTALL_PREFIX
include(GNUInstallDirs)

if(WIN32)
    # Everything goes beside the effect, into its own folder: there is no program to install.
    set(CORVEL_INSTALL_EFFECTDIR . CACHE PATH "Folder of the effect below the prefix")
    set(CORVEL_INSTALL_DOCDIR Corvel)
else()
    # Hosts search lib/vst, also where libraries are in lib64 or in a folder for each architecture.
    set(CORVEL_INSTALL_EFFECTDIR lib/vst CACHE PATH "Folder of the effect below the prefix")
    set(CORVEL_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/corvel)
endif()
GNUInstallDirs_get_absolute_install_dir(CORVEL_INSTALL_FULL_EFFECTDIR CORVEL_INSTALL_EFFECTDIR EFFECTDIR)
