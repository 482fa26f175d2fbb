# SPDX-License-Identifier: GPL-3.0-or-later
# Qt's module for SVG pictures as a static library Qt6::Svg with its two plugins, from the sources of
# Qt 5. Put beside them by build-libraries.
cmake_minimum_required(VERSION 3.25)
project(QtSvg LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_AUTOMOC ON)
find_package(Qt6 REQUIRED COMPONENTS Widgets)

set(svg src/svg)
set(names qsvggraphics qsvghandler qsvgnode qsvgstructure qsvgstyle qsvgfont qsvgtinydocument
    qsvgrenderer qsvggenerator)
list(TRANSFORM names PREPEND ${svg}/)
list(TRANSFORM names APPEND .cpp OUTPUT_VARIABLE sources)
add_library(Qt6Svg STATIC ${sources} ${svg}/qsvgrenderer.h ${svg}/qsvggenerator.h)
set_target_properties(Qt6Svg PROPERTIES EXPORT_NAME Svg)
target_link_libraries(Qt6Svg PUBLIC Qt6::Widgets PRIVATE Qt6::GuiPrivate Qt6::CorePrivate)
target_compile_definitions(Qt6Svg PRIVATE QT_BUILD_SVG_LIB QT_NO_COMPRESS)
# The headers are also asked for as <QtSvg/...>.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include/QtSvg)
foreach(header qsvgrenderer qsvggenerator qtsvgglobal)
  configure_file(${svg}/${header}.h ${CMAKE_BINARY_DIR}/include/QtSvg/${header}.h COPYONLY)
endforeach()
foreach(class QSvgRenderer QSvgGenerator)
  string(TOLOWER ${class} header)
  file(WRITE ${CMAKE_BINARY_DIR}/include/QtSvg/${class} "#include \"${header}.h\"\n")
endforeach()
file(WRITE ${CMAKE_BINARY_DIR}/include/QtSvg/QtSvg
     "#include \"qsvgrenderer.h\"\n#include \"qsvggenerator.h\"\n")
target_include_directories(
  Qt6Svg PUBLIC $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include> $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include/QtSvg>
                $<INSTALL_INTERFACE:include> $<INSTALL_INTERFACE:include/QtSvg>)

foreach(plugin iconengines/svgiconengine:QSvgIconPlugin imageformats/svg:QSvgPlugin)
  string(REPLACE ":" ";" plugin ${plugin})
  list(GET plugin 0 folder)
  list(GET plugin 1 class)
  file(GLOB sources src/plugins/${folder}/*.cpp src/plugins/${folder}/*.h)
  add_library(${class} STATIC ${sources})
  target_compile_definitions(${class} PRIVATE QT_STATICPLUGIN QT_NO_COMPRESS)
  target_link_libraries(${class} PUBLIC Qt6Svg PRIVATE Qt6::GuiPrivate Qt6::CorePrivate)
endforeach()
target_compile_options(Qt6Svg PRIVATE -w)

install(TARGETS Qt6Svg QSvgIconPlugin QSvgPlugin EXPORT Svg)
install(EXPORT Svg NAMESPACE Qt6:: FILE Qt6SvgTargets.cmake DESTINATION lib/cmake/Qt6Svg)
file(WRITE ${CMAKE_BINARY_DIR}/Qt6SvgConfig.cmake
     "include(\${CMAKE_CURRENT_LIST_DIR}/Qt6SvgTargets.cmake)\nset(Qt6Svg_VERSION 6.4.2)\n")
file(WRITE ${CMAKE_BINARY_DIR}/Qt6SvgConfigVersion.cmake
     "set(PACKAGE_VERSION 6.4.2)\nset(PACKAGE_VERSION_COMPATIBLE TRUE)\n")
install(FILES ${CMAKE_BINARY_DIR}/Qt6SvgConfig.cmake ${CMAKE_BINARY_DIR}/Qt6SvgConfigVersion.cmake
        DESTINATION lib/cmake/Qt6Svg)
install(DIRECTORY ${CMAKE_BINARY_DIR}/include/QtSvg DESTINATION include)
