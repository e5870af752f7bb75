# Licence and program sets to try.
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples
  PATTERN ".git*" EXCLUDE)
