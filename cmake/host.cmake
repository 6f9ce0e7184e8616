# The host: a core without a window system, and the command line. They meet the bundle by dlopen.

find_package(CLI11 REQUIRED)

zu_sources(host_core_sources host/core)
add_library(zu_host_core STATIC ${host_core_sources})
target_link_libraries(zu_host_core PUBLIC zu_house zuk_platform ${CMAKE_DL_LIBS})

zu_sources(host_cli_sources host/cli)
list(REMOVE_ITEM host_cli_sources ${CMAKE_SOURCE_DIR}/host/cli/main.cpp)
add_library(zu_host_cli STATIC ${host_cli_sources})
target_link_libraries(zu_host_cli PUBLIC zu_host_core CLI11::CLI11 nlohmann_json::nlohmann_json)

add_executable(zugrid host/cli/main.cpp)
target_link_libraries(zugrid PRIVATE zu_host_cli)
target_compile_definitions(zugrid PRIVATE ZU_VERSION="${PROJECT_VERSION}")
add_dependencies(zugrid zuk_grid_layer2d)
install(TARGETS zugrid RUNTIME DESTINATION bin)
