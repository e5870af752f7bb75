# The icons of the program and of its files, from their SVG drawings. Up to 24 pixels a drawing of
# its own, with every edge on a pixel, stays readable.
add_executable(RenderIcon RenderIcon.cpp)
target_link_libraries(RenderIcon PRIVATE quentor_settings Qt6::Gui Qt6::Svg)

set(icon_sizes 16 22 24 32 48 64 128 256)
set(largest_small_icon 24)

# quentor_icon(NAME FOLDER DRAWING SMALL): the pictures of one icon, installed below FOLDER of the
# icon theme that all others fall back on.
function(quentor_icon name folder drawing small)
  set(theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  foreach(size IN LISTS icon_sizes)
    set(source ${drawing})
    if(size LESS_EQUAL largest_small_icon)
      set(source ${small})
    endif()
    set(picture ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}/${name}.png)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/icons/${size})
    add_custom_command(OUTPUT ${picture} COMMAND RenderIcon ${source} ${size} ${picture}
      DEPENDS RenderIcon ${source} VERBATIM)
    install(FILES ${picture} DESTINATION ${theme}/${size}x${size}/${folder})
    list(APPEND pictures ${picture})
  endforeach()
  add_custom_target(icons_${folder} ALL DEPENDS ${pictures})
  install(FILES ${drawing} DESTINATION ${theme}/scalable/${folder} RENAME ${name}.svg)
endfunction()

set(drawings ${CMAKE_CURRENT_SOURCE_DIR}/icons)
set(own_drawings ${PROJECT_SOURCE_DIR}/src/shell/icons)
if(LINUX)
  quentor_icon(${app_id} apps ${own_drawings}/Quentor.svg ${own_drawings}/QuentorSmall.svg)
  quentor_icon(${set_type} mimetypes ${drawings}/ProgramSet.svg ${drawings}/ProgramSetSmall.svg)
endif()
