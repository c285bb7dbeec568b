# Install rules and the Debian package (cpack -G DEB in the build folder, see ./dev package).
include(GNUInstallDirs)

set(BREVARO_APP_ID io.github.brevaro.Brevaro)
set(BREVARO_PACKAGING_DIR ${PROJECT_SOURCE_DIR}/packaging)
# Directories created by the install are 0755 whatever the umask, as Debian requires.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS brevaro brevaro-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The WebEngine part is a plugin the program loads on demand from
# <prefix>/lib/<multiarch>/brevaro, i.e. ../lib/<multiarch>/brevaro relative to the executable,
# for any prefix (GNUInstallDirs drops the multiarch part outside /usr, so it is not used here).
# BREVARO_PLUGIN_INSTALL_DIR is set by src/CMakeLists.txt, which builds the plugin there too.
if(TARGET brevaro_webplugin)
    install(TARGETS brevaro_webplugin LIBRARY DESTINATION ${BREVARO_PLUGIN_INSTALL_DIR})
endif()

install(FILES ${BREVARO_PACKAGING_DIR}/${BREVARO_APP_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${BREVARO_PACKAGING_DIR}/${BREVARO_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/src/window/icons/brevaro.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME ${BREVARO_APP_ID}.svg)
install(FILES ${BREVARO_PACKAGING_DIR}/brevaro-cli.bash-completion
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME brevaro-cli)

# Manual pages and the changelog are installed gzipped (-n: no name or time stamp, so the
# package is reproducible).
set(compressed_files)
foreach(source brevaro.1 brevaro-cli.1 changelog)
    set(output ${CMAKE_BINARY_DIR}/packaging/${source}.gz)
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packaging
        COMMAND gzip -9n -c ${BREVARO_PACKAGING_DIR}/${source} > ${output}
        DEPENDS ${BREVARO_PACKAGING_DIR}/${source}
        VERBATIM)
    list(APPEND compressed_files ${output})
endforeach()
add_custom_target(brevaro_packaging_files ALL DEPENDS ${compressed_files})
install(FILES ${CMAKE_BINARY_DIR}/packaging/brevaro.1.gz ${CMAKE_BINARY_DIR}/packaging/brevaro-cli.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_BINARY_DIR}/packaging/changelog.gz ${BREVARO_PACKAGING_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/brevaro)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brevaro)
set(CPACK_PACKAGE_VENDOR Quorin)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "describe your programs for download sites in PAD files")
set(CPACK_PACKAGE_DESCRIPTION
    "Brevaro keeps the facts about your company and your programs in one small local\n"
    "database and writes them out as Portable Application Description (PAD 1.15)\n"
    "files, with the ASP, ESC, MSN and TPA extensions, so that download sites can\n"
    "list your software. It also writes an HTML web info block, shows a\n"
    "verification report of every PAD field, imports existing PAD files, suggests\n"
    "keywords from a home page and helps submitting to download directories.\n"
    "\n"
    "The command-line tool brevaro-cli works on the same data for release\n"
    "pipelines.")
string(JOIN "" CPACK_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Quorin <support@quorin.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.brevaro.example/")
# dpkg-shlibdeps finds the libraries the binaries link; the Qt platform plugins are loaded at
# run time, so the window needs them named.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The platform plugins and the SVG icon engine are loaded at run time, so the computed
# dependencies cannot see them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6, libqt6webenginecore6-bin")
# The spelling dictionaries of the description languages (Japanese and Chinese have none); each
# missing one only leaves its language unchecked.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "hunspell-en-us, hunspell-es, hunspell-fr, hunspell-de-de, hunspell-it, hunspell-ru")
include(CPack)
