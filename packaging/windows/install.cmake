# SPDX-License-Identifier: GPL-3.0-or-later
# What goes into the zip and the installer for Windows: everything in one folder, help pages and
# examples beside the programs. The solved projects are a component of their own.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)
set(programs tavorno-banco)
if(TAVORNO_WINDOWS)
  list(APPEND programs tavorno)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION .)
install(
  DIRECTORY ${PROJECT_BINARY_DIR}/HTML
  DESTINATION .
  FILES_MATCHING
  PATTERN "*.htm"
  PATTERN "*.css"
  PATTERN "*.svg"
  PATTERN CMakeFiles EXCLUDE
  PATTERN generator EXCLUDE)
set(solution "us[0-9][0-9]\\.AWL$")
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/examples
  DESTINATION .
  FILES_MATCHING
  PATTERN "*.AWL"
  PATTERN "*.lua"
  REGEX "/${solution}" EXCLUDE)
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/examples/
  DESTINATION solutions
  COMPONENT teacher
  FILES_MATCHING
  REGEX "/${solution}")
install(DIRECTORY $ENV{TAVORNO_WINDOWS_LIBRARIES}/licences DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright DESTINATION licences/tavorno)
if(TAVORNO_WINDOWS)
  install(FILES /usr/share/doc/fonts-dejavu-core/copyright DESTINATION licences/dejavu-fonts)
endif()
