# What `cmake --install` puts where, and the Debian package `cpack` makes of it.
# The programs go to bin/ and read their data from share/torvane/; the desktop
# files install with every build, so one layout serves the headless build too.
include(GNUInstallDirs)
set(TORVANE_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/torvane)

install(TARGETS torvane-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TORVANE_GUI)
  install(TARGETS torvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The data the build lays beside the executables: Param.ini, the report
# templates and the component drawings from data/app/, the catalogue and the
# report pictures made at build time, and the catalogue's SQL text.
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/app/ DESTINATION ${TORVANE_INSTALL_DATADIR})
install(FILES ${CMAKE_BINARY_DIR}/Series.db DESTINATION ${TORVANE_INSTALL_DATADIR})
install(FILES ${REPORT_PICTURE_BMP} DESTINATION ${TORVANE_INSTALL_DATADIR}/BMP_data)
install(FILES ${CATALOGUE_SQL} DESTINATION ${TORVANE_INSTALL_DATADIR}/catalogue)
install(FILES ${EXAMPLE_FILES} DESTINATION ${TORVANE_INSTALL_DATADIR}/examples)

set(DESKTOP_DIR ${CMAKE_SOURCE_DIR}/data/desktop)
install(FILES ${DESKTOP_DIR}/torvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${DESKTOP_DIR}/torvane.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${DESKTOP_DIR}/application-x-torvane-ap2.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)
install(FILES ${DESKTOP_DIR}/torvane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME torvane.xml)
install(FILES ${DESKTOP_DIR}/io.github.torvane.Torvane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/data/man/torvane.1 ${CMAKE_SOURCE_DIR}/data/man/torvane-cli.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The Debian package; dpkg-shlibdeps finds the libraries it depends on.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvane)
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_CONTACT "Torvane developers <torvane@users.noreply.github.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Size servo motors and drivers for a machine")
set(CPACK_PACKAGE_DESCRIPTION "Torvane sizes servo drives: from the chain of mechanical components behind a
motor and the motion it must follow, it computes the load inertia, the torque
and regeneration of every interval and the sizing values, and judges every
motor and driver of a catalogue against them. It comes as the window program
torvane and the command line tool torvane-cli.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
