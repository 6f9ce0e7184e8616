# Five test programs. Tests stand in the same folders as the code they look at.

find_package(GTest REQUIRED)

# Runs every test of a program in one process, and again under a decimal-comma locale.
function(zu_test name)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${ZU_TEST_ENVIRONMENT}")
endfunction()
set(ZU_TEST_ENVIRONMENT
    "ZU_BUILD_DIR=${CMAKE_BINARY_DIR};ZU_SOURCE_DIR=${CMAKE_SOURCE_DIR};LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp;ASAN_OPTIONS=detect_odr_violation=0;QT_QPA_PLATFORM=offscreen"
)

# Tests are compiled once and run once: their own code needs no optimizer, which is two thirds of the
# time of compiling it.
function(zu_test_program name)
  target_compile_options(${name} PRIVATE -O0)
  target_precompile_headers(${name} PRIVATE
    "$<$<COMPILE_LANGUAGE:CXX>:<gtest/gtest.h$<ANGLE-R>>" ${ARGN})
endfunction()

# The bundle's own code, on the real platform.
file(GLOB_RECURSE bundle_tests CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/unit/src/*.cpp)
add_executable(unit_bundle ${bundle_tests})
zu_test_program(unit_bundle)
target_link_libraries(unit_bundle PRIVATE zuk_bundle_objects zuk_floor_objects zuk_platform PkgConfig::GDAL GTest::gtest_main)

# The platform's own code, with its insides in reach.
file(GLOB_RECURSE platform_tests CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/unit/platform/*.cpp
                                                    ${CMAKE_SOURCE_DIR}/tests/unit/platform/*.c)
add_executable(unit_platform ${platform_tests})
zu_test_program(unit_platform)
target_link_libraries(unit_platform PRIVATE zuk_platform_objects GTest::gtest_main)

# The border alone, and the rules of the house.
file(GLOB_RECURSE abi_tests CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/abi/*.cpp)
add_executable(abi ${abi_tests})
zu_test_program(abi)
target_link_libraries(abi PRIVATE zu_house zuk_platform GTest::gtest_main ${CMAKE_DL_LIBS})
add_dependencies(abi zuk_grid_layer2d zuk_common)

# The command line on real files, and the host's core.
file(GLOB_RECURSE e2e_tests CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/e2e/*.cpp
                                               ${CMAKE_SOURCE_DIR}/tests/unit/host/*.cpp)
add_executable(e2e ${e2e_tests})
zu_test_program(e2e)
target_link_libraries(e2e PRIVATE zu_host_cli PkgConfig::GDAL GTest::gtest_main)
add_dependencies(e2e zugrid zuk_common)

# The window, offscreen, driven as a person drives it.
find_package(Qt6 REQUIRED COMPONENTS Test)
file(GLOB_RECURSE gui_tests CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/gui/*.cpp)
add_executable(gui ${gui_tests})
target_link_libraries(gui PRIVATE zu_host_desktop Qt6::Test GTest::gtest)
zu_test_program(gui <QtTest> <QtWidgets>)
add_dependencies(gui zuk_grid_layer2d zuk_common)

foreach(program unit_bundle unit_platform abi e2e gui)
  zu_test(${program})
endforeach()

# A second reading of the pipeline, compared with the program by pixel. Too slow a program under the
# sanitizers, which the tests above run under.
if(NOT ZU_SANITIZE)
  foreach(script reference_test compare)
    add_test(NAME reference_${script} COMMAND /usr/bin/python3 ${CMAKE_SOURCE_DIR}/tests/reference/${script}.py)
    set_tests_properties(reference_${script} PROPERTIES ENVIRONMENT "${ZU_TEST_ENVIRONMENT}")
  endforeach()
endif()
