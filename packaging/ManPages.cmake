# One page for each program, compressed without name and time so that two builds give one file.
find_program(GZIP_PROGRAM gzip REQUIRED)

# quentor_compressed(SOURCE NAME): target file NAME.gz of SOURCE, made with the others.
function(quentor_compressed source name)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${file} COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${file}
    DEPENDS ${source} VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${file})
endfunction()

foreach(program quentor quentor-cli halden-board)
  configure_file(man/${program}.1.in ${program}.1 @ONLY)
  quentor_compressed(${CMAKE_CURRENT_BINARY_DIR}/${program}.1 ${program}.1)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
