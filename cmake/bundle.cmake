# zuk_grid_layer2d.so and zuk_common.so: exactly two exported symbols each, and nothing linked but the platform.

# The floors that both are built of, without the list of what each one offers.
zu_sources(floor_sources src/bundle)
foreach(folder toolkit viewer data style/classes)
  zu_sources(found src/${folder})
  list(APPEND floor_sources ${found})
endforeach()
list(REMOVE_ITEM floor_sources ${CMAKE_SOURCE_DIR}/src/bundle/registered_services.cpp)
zu_sources(common_sources src/common)
zu_sources(bundle_sources src)
list(REMOVE_ITEM bundle_sources ${floor_sources} ${common_sources})

foreach(part floor bundle)
  add_library(zuk_${part}_objects OBJECT ${${part}_sources})
  target_link_libraries(zuk_${part}_objects PUBLIC zu_house)
  target_precompile_headers(zuk_${part}_objects PRIVATE <algorithm> <cmath> <cstdint> <list> <map> <memory> <set>
                            <string> <vector>)
endforeach()

set(bundle_exports ${CMAKE_SOURCE_DIR}/src/bundle/exports.map)
function(zu_bundle name)
  add_library(${name} MODULE ${ARGN})
  set_target_properties(${name} PROPERTIES PREFIX "" LINK_DEPENDS ${bundle_exports})
  target_link_libraries(${name} PRIVATE zu_house zuk_platform)
  target_link_options(${name} PRIVATE -Wl,--version-script=${bundle_exports} -Wl,--as-needed
                      $<$<NOT:$<BOOL:${ZU_SANITIZE}>>:-Wl,--no-undefined>)
  install(TARGETS ${name} LIBRARY DESTINATION lib)
endfunction()

zu_bundle(zuk_grid_layer2d)
target_link_libraries(zuk_grid_layer2d PRIVATE zuk_bundle_objects zuk_floor_objects)
zu_bundle(zuk_common ${common_sources})
target_link_libraries(zuk_common PRIVATE zuk_floor_objects)
