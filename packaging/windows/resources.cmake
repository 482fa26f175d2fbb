# SPDX-License-Identifier: GPL-3.0-or-later
# Icon and manifest of the program on Windows. Called for the target `tavorno`.
find_program(TAVORNO_CONVERT convert REQUIRED)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/tavorno.ico)
set(picture ${PROJECT_SOURCE_DIR}/assets/icons/tavorno.svg)
add_custom_command(
  OUTPUT ${icon}
  COMMAND ${TAVORNO_CONVERT} -background none -density 384 ${picture} -define
          icon:auto-resize=256,64,48,32,24,16 ${icon}
  DEPENDS ${picture}
  COMMENT "Icon"
  VERBATIM)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tavorno.rc.in ${CMAKE_CURRENT_BINARY_DIR}/tavorno.rc @ONLY)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/tavorno.rc PROPERTIES OBJECT_DEPENDS ${icon})
target_sources(tavorno PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tavorno.rc)
