# libzuk_platform.so: the plain functions of include/zu/platform, one folder per library.

find_package(PkgConfig REQUIRED)
pkg_check_modules(GDAL REQUIRED IMPORTED_TARGET gdal)
pkg_check_modules(PROJ REQUIRED IMPORTED_TARGET proj)
pkg_check_modules(CAIRO REQUIRED IMPORTED_TARGET cairo)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-i18n icu-uc)
pkg_check_modules(PUGIXML REQUIRED IMPORTED_TARGET pugixml)
pkg_check_modules(PANGOCAIRO REQUIRED IMPORTED_TARGET pangocairo)
pkg_check_modules(SQLITE REQUIRED IMPORTED_TARGET sqlite3)
find_library(SEGYIO segyio REQUIRED)
find_package(nlohmann_json 3 REQUIRED)
find_package(Threads REQUIRED)

zu_sources(platform_sources platform)
add_library(zuk_platform_objects OBJECT ${platform_sources})
target_link_libraries(zuk_platform_objects PUBLIC zu_house PkgConfig::GDAL PkgConfig::PROJ PkgConfig::CAIRO
                      PkgConfig::ICU PkgConfig::PUGIXML PkgConfig::PANGOCAIRO PkgConfig::SQLITE ${SEGYIO} nlohmann_json::nlohmann_json Threads::Threads)
target_precompile_headers(zuk_platform_objects PRIVATE <algorithm> <cmath> <cstdint> <cstring> <map> <memory>
                          <string> <vector>)
# Vectorised, for which neither a root may set errno nor a comparison trap. The shared headers
# were compiled with other options.
set_source_files_properties(platform/zuk_prg/hillshade.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON
                            COMPILE_OPTIONS "-fno-math-errno;-fno-trapping-math;$<$<CONFIG:Release>:-O3>")

add_library(zuk_platform SHARED)
target_link_libraries(zuk_platform PRIVATE zuk_platform_objects)
target_include_directories(zuk_platform INTERFACE ${CMAKE_SOURCE_DIR}/include)
install(TARGETS zuk_platform LIBRARY DESTINATION lib)

# Libraries of styles that come with the program, where it looks for them from bin/.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/zugrid)
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/resources/style_libs ${CMAKE_BINARY_DIR}/share/zugrid/style_libs SYMBOLIC)
install(DIRECTORY resources/style_libs/ DESTINATION share/zugrid/style_libs FILES_MATCHING PATTERN "*._ls")
