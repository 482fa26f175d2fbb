# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries what every library and program is compiled with.
add_library(tavorno_options INTERFACE)
target_include_directories(tavorno_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
  tavorno_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
                            -fno-math-errno)

if(TAVORNO_SANITIZERS)
  target_compile_options(tavorno_options INTERFACE -Werror -fsanitize=address,undefined
                                                   -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
  target_link_options(tavorno_options INTERFACE -fsanitize=address,undefined)
endif()
if(TAVORNO_FUZZ)
  target_compile_options(tavorno_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                   -fno-sanitize-recover=all)
  target_link_options(tavorno_options INTERFACE -fsanitize=address,undefined)
endif()
