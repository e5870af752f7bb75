# Compiler settings that every target of the project shares.
add_library(quentor_settings INTERFACE)
option(QUENTOR_WERROR "Treat warnings as errors" OFF)
if(MSVC)
  target_compile_options(quentor_settings INTERFACE /W4 /utf-8 /permissive-)
else()
  target_compile_options(quentor_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
endif()
if(QUENTOR_WERROR)
  target_compile_options(quentor_settings INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()
if(QUENTOR_HARDEN)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  target_compile_options(quentor_settings INTERFACE
    -fstack-protector-strong -Wformat -Werror=format-security
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_link_options(quentor_settings INTERFACE -Wl,-z,relro,-z,now)
endif()
if(QUENTOR_SANITIZE)
  target_compile_options(quentor_settings INTERFACE -fsanitize=address,undefined
                                                    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quentor_settings INTERFACE -fsanitize=address,undefined)
endif()

if(QUENTOR_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    message(FATAL_ERROR "QUENTOR_FUZZ needs clang: cmake --preset fuzz")
  endif()
  set(fuzz_flags -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow)
  target_compile_options(quentor_settings INTERFACE ${fuzz_flags} -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(quentor_settings INTERFACE ${fuzz_flags})
endif()

# ccache takes precompiled headers only when it is told that their defines and times may differ.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${CCACHE_PROGRAM})
endif()

# quentor_library(NAME SOURCES ... LINKS ... [PCH header ...]): a static library with the shared
# settings; its headers are included as "folder/Header.h" from src/.
function(quentor_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PCH" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC quentor_settings ${ARG_LINKS})
  target_compile_definitions(${name} PUBLIC QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  if(ARG_PCH)
    target_precompile_headers(${name} PRIVATE ${ARG_PCH})
  endif()
endfunction()

# quentor_test(NAME SOURCES ... LINKS ...): a GoogleTest executable, one ctest entry per test.
function(quentor_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS})
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
endfunction()
