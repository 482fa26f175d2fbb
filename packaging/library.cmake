# SPDX-License-Identifier: GPL-3.0-or-later
# The libraries without windows, for programs of others: find_package(Tavorno) and, for a CPU,
# target_link_libraries(... Tavorno::awl). Component "library".
include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Tavorno)
set(libraries plc awl plants trace recorder ladder grading)

foreach(library IN LISTS libraries)
  set_target_properties(tavorno_${library} PROPERTIES EXPORT_NAME ${library})
  list(APPEND targets tavorno_${library})
  install(
    DIRECTORY ${PROJECT_SOURCE_DIR}/${library}
    DESTINATION include/tavorno
    COMPONENT library
    FILES_MATCHING
    PATTERN "*.h"
    PATTERN ui EXCLUDE
    PATTERN host EXCLUDE)
endforeach()
install(
  TARGETS ${targets} tavorno_options
  EXPORT Tavorno
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
install(
  EXPORT Tavorno
  FILE TavornoTargets.cmake
  NAMESPACE Tavorno::
  DESTINATION ${package}
  COMPONENT library)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/TavornoConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES TavornoConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/TavornoConfigVersion.cmake
        DESTINATION ${package} COMPONENT library)
