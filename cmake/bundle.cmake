# zuk_grid_layer2d.so: exactly two exported symbols, and nothing linked but the platform.

zu_sources(bundle_sources src)
add_library(zuk_bundle_objects OBJECT ${bundle_sources})
target_link_libraries(zuk_bundle_objects PUBLIC zu_house)
target_precompile_headers(zuk_bundle_objects PRIVATE <algorithm> <cmath> <cstdint> <list> <map> <memory> <set>
                          <string> <vector>)

add_library(zuk_grid_layer2d MODULE)
set_target_properties(zuk_grid_layer2d PROPERTIES PREFIX "")
set(bundle_exports ${CMAKE_SOURCE_DIR}/src/bundle/exports.map)
target_link_libraries(zuk_grid_layer2d PRIVATE zuk_bundle_objects zuk_platform)
target_link_options(zuk_grid_layer2d PRIVATE -Wl,--version-script=${bundle_exports} -Wl,--as-needed
                    $<$<NOT:$<BOOL:${ZU_SANITIZE}>>:-Wl,--no-undefined>)
set_target_properties(zuk_grid_layer2d PROPERTIES LINK_DEPENDS ${bundle_exports})
install(TARGETS zuk_grid_layer2d LIBRARY DESTINATION lib)
