# SPDX-License-Identifier: GPL-3.0-or-later
# The editor component as a static library; its own build files know only qmake. Put beside its
# sources by build-libraries.
cmake_minimum_required(VERSION 3.25)
project(QScintilla LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_AUTOMOC ON)
find_package(Qt6 REQUIRED COMPONENTS Widgets PrintSupport)

# Of its lexers only the one that programs derive their own from.
file(GLOB lexers src/qscilexer*.cpp)
list(REMOVE_ITEM lexers ${CMAKE_CURRENT_SOURCE_DIR}/src/qscilexer.cpp
     ${CMAKE_CURRENT_SOURCE_DIR}/src/qscilexercustom.cpp)
file(GLOB sources src/*.cpp scintilla/src/*.cpp scintilla/lexlib/*.cpp)
list(REMOVE_ITEM sources ${lexers} ${CMAKE_CURRENT_SOURCE_DIR}/src/MacPasteboardMime.cpp)
file(GLOB headers src/*.h src/Qsci/*.h)
list(FILTER headers EXCLUDE REGEX "/qscilexer[a-z0-9]+\\.h$")
list(APPEND headers ${CMAKE_CURRENT_SOURCE_DIR}/src/Qsci/qscilexercustom.h)

add_library(qscintilla2_qt6 STATIC ${sources} ${headers})
target_include_directories(qscintilla2_qt6 PRIVATE src scintilla/include scintilla/lexlib scintilla/src)
target_compile_definitions(qscintilla2_qt6 PRIVATE SCINTILLA_QT SCI_LEXER INCLUDE_DEPRECATED_FEATURES)
target_compile_options(qscintilla2_qt6 PRIVATE -w)
target_link_libraries(qscintilla2_qt6 PUBLIC Qt6::Widgets Qt6::PrintSupport)
install(TARGETS qscintilla2_qt6)
install(DIRECTORY src/Qsci DESTINATION include)
