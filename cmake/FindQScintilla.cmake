# SPDX-License-Identifier: GPL-3.0-or-later
# The editor component; Debian ships it without a CMake package. Defines QScintilla::QScintilla.
find_path(QScintilla_INCLUDE_DIR Qsci/qsciscintilla.h PATH_SUFFIXES x86_64-linux-gnu/qt6 aarch64-linux-gnu/qt6 qt6)
find_library(QScintilla_LIBRARY qscintilla2_qt6)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QScintilla REQUIRED_VARS QScintilla_LIBRARY QScintilla_INCLUDE_DIR)

if(QScintilla_FOUND AND NOT TARGET QScintilla::QScintilla)
  add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
  set_target_properties(
    QScintilla::QScintilla
    PROPERTIES IMPORTED_LOCATION "${QScintilla_LIBRARY}"
               INTERFACE_INCLUDE_DIRECTORIES "${QScintilla_INCLUDE_DIR}"
               INTERFACE_LINK_LIBRARIES "Qt6::Widgets;Qt6::PrintSupport")
endif()
