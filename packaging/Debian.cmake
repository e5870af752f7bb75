# What the Debian package says of itself; what it depends on is read from the programs.
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME quentor)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_release})
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The icons are drawn by a plug-in of this library, which no program is linked with.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6 (>= 6.4)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(QUENTOR_MAINTAINER "The Quentor developers <quentor@example.org>" CACHE STRING
  "Who answers for the package, as Debian writes it; example.org stands for nobody's address")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${QUENTOR_MAINTAINER}")

quentor_compressed(${changelog} changelog.Debian)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME quentor COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${PROJECT_BINARY_DIR};Quentor;ALL;/;${PROJECT_BINARY_DIR};Quentor;debian;/")
