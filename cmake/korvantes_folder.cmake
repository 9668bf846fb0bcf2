# One target per folder. Every folder sees the project's root as its include path and is compiled
# with the same strict warnings.

add_library(korvantes_options INTERFACE)
target_include_directories(korvantes_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
  korvantes_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow
                              -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                              -Woverloaded-virtual -Werror>)
# g++ 12 sees overlapping copies in plain assignments of short literals to a std::string when it
# optimises (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(korvantes_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
if(KORVANTES_SANITIZE)
  target_compile_options(korvantes_options INTERFACE -fsanitize=address,undefined
                                                     -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
  target_link_options(korvantes_options INTERFACE -fsanitize=address,undefined)
endif()

# korvantes_folder(NAME SOURCES file... [LINKS target...])
# An object library: its objects end up in the shared library that the folder belongs to.
function(korvantes_folder name)
  cmake_parse_arguments(PARSE_ARGV 1 folder "" "" "SOURCES;LINKS")
  add_library(${name} OBJECT ${folder_SOURCES})
  target_link_libraries(${name} PUBLIC korvantes_options ${folder_LINKS})
endfunction()

# korvantes_test(NAME [PREFIX text] SOURCES file... LINKS target...): one binary per layer. The
# prefix tells apart tests that two binaries share.
function(korvantes_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "PREFIX" "SOURCES;LINKS")
  add_executable(${name} ${test_SOURCES})
  target_link_libraries(${name} PRIVATE korvantes_options ${test_LINKS} GTest::gmock_main)
  gtest_discover_tests(${name} TEST_PREFIX "${test_PREFIX}" DISCOVERY_TIMEOUT 60)
endfunction()
