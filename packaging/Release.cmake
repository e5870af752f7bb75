# Revision and date of the release stand in the change log alone; its version must be the project's.
set(changelog ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})

file(STRINGS ${changelog} newest REGEX "^quentor " LIMIT_COUNT 1)
if(NOT newest MATCHES "^quentor \\(${PROJECT_VERSION}-([0-9]+)\\)")
  message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${PROJECT_VERSION}")
endif()
set(debian_release ${CMAKE_MATCH_1})

# " -- Name <address>  Sat, 21 Nov 2026 18:00:00 +0000"
file(STRINGS ${changelog} signature REGEX "^ -- " LIMIT_COUNT 1)
if(NOT signature MATCHES ", ([0-3][0-9]) ([A-Z][a-z][a-z]) ([0-9][0-9][0-9][0-9]) ")
  message(FATAL_ERROR "packaging/debian/changelog: no date in \"${signature}\"")
endif()
set(day ${CMAKE_MATCH_1})
set(month ${CMAKE_MATCH_2})
set(year ${CMAKE_MATCH_3})
set(months January February March April May June July August September October November December)
set(release_date "")
foreach(number RANGE 1 12)
  list(POP_FRONT months name)
  if(name MATCHES "^${month}")
    string(REGEX REPLACE "^.*(..)$" "\\1" digits 0${number})
    set(release_date ${year}-${digits}-${day}) # as the metainfo writes it
    set(man_date "${name} ${day}, ${year}")    # as manual pages do
  endif()
endforeach()
