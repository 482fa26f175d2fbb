# SPDX-License-Identifier: GPL-3.0-or-later
include(CMakeFindDependencyMacro)
find_dependency(Threads)
find_dependency(nlohmann_json)
find_dependency(LibArchive)
include(${CMAKE_CURRENT_LIST_DIR}/TavornoTargets.cmake)
