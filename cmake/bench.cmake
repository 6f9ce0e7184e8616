# Programs that bench/run times beside other programs.

foreach(name classes draw shading statistics)
  add_executable(bench_${name} bench/${name}.cpp)
  target_link_libraries(bench_${name} PRIVATE zu_house zuk_platform ${CMAKE_DL_LIBS})
endforeach()
add_dependencies(bench_draw zuk_grid_layer2d)
add_dependencies(bench_classes zuk_common)

# The window's map, which the other programs know nothing of.
add_executable(bench_redraw bench/redraw.cpp)
target_link_libraries(bench_redraw PRIVATE zu_host_desktop)
add_dependencies(bench_redraw zuk_grid_layer2d)
