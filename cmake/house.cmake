# What every target shares: language, warnings, sanitizers, where things are built.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/archive)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib")

find_program(ZU_CCACHE ccache)
if(ZU_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${ZU_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZU_CCACHE})
endif()

add_library(zu_house INTERFACE)
target_include_directories(zu_house INTERFACE ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR})
target_compile_options(zu_house INTERFACE -Wall -Wextra $<$<BOOL:${ZU_WERROR}>:-Werror>)
# GCC places what it takes for unlikely far away; and a NaN must stay one: no fast-math anywhere.
target_compile_options(zu_house INTERFACE -ffp-contract=off)
if(ZU_ARCH)
  target_compile_options(zu_house INTERFACE -march=${ZU_ARCH})
endif()
if(ZU_SANITIZE)
  target_compile_options(zu_house INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                            -fno-sanitize-recover=undefined)
  # GCC 12 takes members of std::function for uninitialized once they are watched.
  target_compile_options(zu_house INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(zu_house INTERFACE -fsanitize=address,undefined)
endif()
if(ZU_FUZZ)
  target_compile_options(zu_house INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Sources below a folder; new files are found by themselves.
function(zu_sources out folder)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  set(${out} ${found} PARENT_SCOPE)
endfunction()
