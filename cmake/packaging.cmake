# What an installation holds, and the Debian package made of it. The program looks for its pictures
# and tables beside itself, so all lie in a folder of their own.
install(TARGETS tarnwick DESTINATION lib/tarnwick)
install(DIRECTORY assets DESTINATION lib/tarnwick PATTERN "*.ico" EXCLUDE PATTERN "*.md" EXCLUDE)
install(CODE [[
  set(BIN "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin")
  file(MAKE_DIRECTORY "${BIN}")
  file(CREATE_LINK ../lib/tarnwick/tarnwick "${BIN}/tarnwick" SYMBOLIC)
]])
install(FILES packaging/linux/tarnwick.desktop DESTINATION share/applications)
install(FILES packaging/linux/tarnwick.metainfo.xml DESTINATION share/metainfo)
install(FILES assets/icon/tarnwick.png DESTINATION share/icons/hicolor/256x256/apps)
install(FILES LICENSE DESTINATION share/doc/tarnwick RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tarnwick developers <tarnwick@tarnwick.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "One moment in nine calendars, with the Moon as it stood")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
