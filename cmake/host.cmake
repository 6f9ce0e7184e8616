# The host: a core without a window system, and the command line. They meet the bundle by dlopen.

find_package(CLI11 REQUIRED)

zu_sources(host_core_sources host/core)
add_library(zu_host_core STATIC ${host_core_sources})
target_link_libraries(zu_host_core PUBLIC zu_house zuk_platform ${CMAKE_DL_LIBS})

zu_sources(host_cli_sources host/cli)
list(REMOVE_ITEM host_cli_sources ${CMAKE_SOURCE_DIR}/host/cli/main.cpp)
add_library(zu_host_cli STATIC ${host_cli_sources})
target_link_libraries(zu_host_cli PUBLIC zu_host_core CLI11::CLI11 nlohmann_json::nlohmann_json)
target_precompile_headers(zu_host_cli PRIVATE <CLI/CLI.hpp> <nlohmann/json.hpp>)

add_executable(zugrid host/cli/main.cpp)
target_link_libraries(zugrid PRIVATE zu_host_cli)
target_compile_definitions(zugrid PRIVATE ZU_VERSION="${PROJECT_VERSION}")
add_dependencies(zugrid zuk_grid_layer2d)
install(TARGETS zugrid RUNTIME DESTINATION bin)

# The manual page and the completion say what the program says.
set(manual ${CMAKE_BINARY_DIR}/share/man/man1/zugrid.1)
set(completion ${CMAKE_BINARY_DIR}/share/bash-completion/completions/zugrid)
add_custom_command(OUTPUT ${manual} ${completion}
                   COMMAND ${CMAKE_COMMAND} -E make_directory share/man/man1 share/bash-completion/completions
                   COMMAND zugrid manual man > ${manual}
                   COMMAND zugrid manual bash > ${completion}
                   WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
                   DEPENDS zugrid)
add_custom_target(manual ALL DEPENDS ${manual} ${completion})
install(FILES ${manual} DESTINATION share/man/man1)
install(FILES ${completion} DESTINATION share/bash-completion/completions)
