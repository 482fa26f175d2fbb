# SPDX-License-Identifier: GPL-3.0-or-later
# tavorno_read_together(TARGETS...): compiles up to six sources of a library as one text, which takes
# half the time. For builds that begin from nothing: a build for editing compiles less after a change
# without it, and only there each source is seen to include what it needs.
option(TAVORNO_TOGETHER "Compile several sources of a library as one text" OFF)

function(tavorno_read_together)
  if(NOT TAVORNO_TOGETHER)
    return()
  endif()
  file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/*.h)
  list(FILTER headers EXCLUDE REGEX "^(build|tests)/")
  foreach(target ${ARGN})
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "^[a-z_]+\\.cpp$")
    get_target_property(folder ${target} SOURCE_DIR)
    file(RELATIVE_PATH place ${PROJECT_SOURCE_DIR} ${folder})
    list(TRANSFORM sources PREPEND ${place}/)
    # A name that two sources keep to themselves keeps them apart.
    execute_process(
      COMMAND awk -v together=6 -f ${PROJECT_SOURCE_DIR}/cmake/names.awk
              -f ${PROJECT_SOURCE_DIR}/cmake/groups.awk ${headers} ${sources}
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE groups COMMAND_ERROR_IS_FATAL ANY
      OUTPUT_STRIP_TRAILING_WHITESPACE)
    string(REPLACE "\n" ";" groups "${groups}")
    set(number 0)
    foreach(group IN LISTS groups)
      math(EXPR number "${number} + 1")
      separate_arguments(group)
      list(TRANSFORM group PREPEND ${PROJECT_SOURCE_DIR}/)
      set_source_files_properties(${group} TARGET_DIRECTORY ${target}
                                  PROPERTIES UNITY_GROUP ${number})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  endforeach()
endfunction()
