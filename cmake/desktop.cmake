# zugrid-desktop: the host with windows, on Qt 6 Widgets.

find_package(Qt6 REQUIRED COMPONENTS Widgets Svg)

zu_sources(host_desktop_sources host/desktop)
list(REMOVE_ITEM host_desktop_sources ${CMAKE_SOURCE_DIR}/host/desktop/main.cpp)
file(GLOB_RECURSE host_desktop_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/host/desktop/*.h)
add_library(zu_host_desktop STATIC ${host_desktop_sources} ${host_desktop_headers})
# A new header is looked through at once only if its time is watched.
set_target_properties(zu_host_desktop PROPERTIES AUTOMOC ON AUTOGEN_TARGET_DEPENDS "${host_desktop_headers}")
target_link_libraries(zu_host_desktop PUBLIC zu_host_core Qt6::Widgets)
# Texts become QString by a cast that says from which encoding, keywords stay words of the language.
target_compile_definitions(zu_host_desktop PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
target_precompile_headers(zu_host_desktop PRIVATE <QtWidgets> <algorithm> <cmath> <functional> <memory> <string>
                          <vector>)

add_executable(zugrid-desktop host/desktop/main.cpp)
target_link_libraries(zugrid-desktop PRIVATE zu_host_desktop)
qt_add_resources(zugrid-desktop pictures PREFIX / BASE ${CMAKE_SOURCE_DIR}/resources/desktop
                 FILES ${CMAKE_SOURCE_DIR}/resources/desktop/zugrid.svg)
target_compile_definitions(zugrid-desktop PRIVATE ZU_VERSION="${PROJECT_VERSION}")
add_dependencies(zugrid-desktop zuk_grid_layer2d zuk_common)
install(TARGETS zugrid-desktop RUNTIME DESTINATION bin)
install(FILES resources/desktop/zugrid-desktop.desktop DESTINATION share/applications)
install(FILES resources/desktop/zugrid.svg DESTINATION share/icons/hicolor/scalable/apps)
