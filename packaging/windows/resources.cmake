# SPDX-License-Identifier: GPL-3.0-or-later
# What a program for Windows has compiled in beside its code.

# Which Windows it knows, and that it takes long paths.
function(tavorno_manifest target)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}-manifest.rc)
  set(manifest ${PROJECT_SOURCE_DIR}/packaging/windows/tavorno.manifest)
  file(CONFIGURE OUTPUT ${resources} CONTENT "1 24 \"${manifest}\"\n")
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS ${manifest})
  target_sources(${target} PRIVATE ${resources})
endfunction()

function(tavorno_icon target)
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
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}-icon.rc)
  file(CONFIGURE OUTPUT ${resources} CONTENT "1 ICON \"${icon}\"\n")
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS ${icon})
  target_sources(${target} PRIVATE ${resources})
endfunction()
