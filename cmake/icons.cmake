# The icons, drawn with the Qt of the system that builds: ${TROVALIS_ICONS} has them as pictures, qrc_icons.cpp as a source.
set(TROVALIS_ICONS ${PROJECT_BINARY_DIR}/icons)
if(CMAKE_CROSSCOMPILING)
  include(ExternalProject)
  ExternalProject_Add(tools
    SOURCE_DIR ${PROJECT_SOURCE_DIR}/tools
    BINARY_DIR ${PROJECT_BINARY_DIR}/tools
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
    BUILD_BYPRODUCTS ${PROJECT_BINARY_DIR}/tools/make_icons
    BUILD_ALWAYS ON
    INSTALL_COMMAND "")
  set(make_icons ${PROJECT_BINARY_DIR}/tools/make_icons)
else()
  add_subdirectory(${PROJECT_SOURCE_DIR}/tools ${PROJECT_BINARY_DIR}/tools)
  set(make_icons make_icons)
endif()
set(drawings ${PROJECT_SOURCE_DIR}/src/ui/kit/icons)
file(GLOB drawing_files CONFIGURE_DEPENDS ${drawings}/*.svg)
# By what every toolkit can read: the one that compresses may have more than the one that reads.
add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/qrc_icons.cpp ${TROVALIS_ICONS}/trovalis.ico
  COMMAND ${make_icons} ${drawings} ${TROVALIS_ICONS}
  COMMAND Qt6::rcc --compress-algo zlib --name icons -o ${CMAKE_CURRENT_BINARY_DIR}/qrc_icons.cpp ${TROVALIS_ICONS}/icons.qrc
  DEPENDS ${make_icons} ${drawing_files}
  COMMENT "Drawing the icons")
