# Menu entry, file type and what software centres show.

# Screenshots are taken from the web: without an address there are none to name.
file(READ ${app_id}.metainfo.xml.in metainfo)
if(NOT QUENTOR_PICTURES_URL)
  string(REGEX REPLACE "  <screenshots>.*</screenshots>\n" "" metainfo "${metainfo}")
endif()
string(CONFIGURE "${metainfo}" metainfo @ONLY)
file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${app_id}.metainfo.xml CONTENT "${metainfo}")

install(FILES ${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${app_id}.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${app_id}.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
