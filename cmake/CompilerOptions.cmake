# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries what every library and program is compiled with.
add_library(tavorno_options INTERFACE)
# What stands outside BUILD_INTERFACE also holds for programs that use the installed libraries.
target_include_directories(tavorno_options INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                                     $<INSTALL_INTERFACE:include/tavorno>)
target_compile_features(tavorno_options INTERFACE cxx_std_20)
target_compile_options(
  tavorno_options INTERFACE $<BUILD_INTERFACE:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Wno-sign-conversion;-fno-math-errno>)

if(TAVORNO_SANITIZERS)
  target_compile_options(tavorno_options INTERFACE $<BUILD_INTERFACE:-Werror> -fsanitize=address,undefined
                                                   -fno-sanitize-recover=all -fno-omit-frame-pointer
                                                   $<BUILD_INTERFACE:-O1>)
  target_link_options(tavorno_options INTERFACE -fsanitize=address,undefined)
  # Programs with sanitizers are large, and there are two dozen of them: the quickest linker there is.
  find_program(TAVORNO_MOLD mold)
  if(TAVORNO_MOLD)
    target_link_options(tavorno_options INTERFACE $<BUILD_INTERFACE:-fuse-ld=mold>)
  endif()
endif()
if(TAVORNO_FUZZ)
  target_compile_options(tavorno_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                   -fno-sanitize-recover=all)
  target_link_options(tavorno_options INTERFACE -fsanitize=address,undefined)
endif()
