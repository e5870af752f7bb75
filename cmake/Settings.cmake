# Compiler settings that every target of the project shares.
add_library(quentor_settings INTERFACE)
target_compile_options(quentor_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
option(QUENTOR_WERROR "Treat warnings as errors" OFF)
if(QUENTOR_WERROR)
  target_compile_options(quentor_settings INTERFACE -Werror)
endif()
if(QUENTOR_SANITIZE)
  target_compile_options(quentor_settings INTERFACE -fsanitize=address,undefined
                                                    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quentor_settings INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
