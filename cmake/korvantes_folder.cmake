# Turns our folders into targets. Settings here apply only to this project's folders: no warning or
# sanitizer option reaches a project that uses the libraries.

set(CMAKE_COMPILE_WARNING_AS_ERROR ${PROJECT_IS_TOP_LEVEL})
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
add_compile_options(
  "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Wsign-conversion;-Wnon-virtual-dtor;-Woverloaded-virtual>"
)
# g++ 12 sees overlapping copies in plain assignments of short literals to a std::string when it
# optimises (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
if(KORVANTES_SANITIZE)
  set(KORVANTES_SANITIZERS -fsanitize=address,undefined -fno-sanitize-recover=all
                           -fno-omit-frame-pointer)
  add_compile_options(${KORVANTES_SANITIZERS})
  add_link_options(${KORVANTES_SANITIZERS})
endif()

# What our headers require of whoever includes them.
add_library(korvantes_headers INTERFACE)
target_include_directories(
  korvantes_headers INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/korvantes>)
target_compile_features(korvantes_headers INTERFACE cxx_std_20)

# korvantes_folder(NAME SOURCES file... [LINKS target...])
# An object library: its objects end up in the library that the folder belongs to.
function(korvantes_folder name)
  cmake_parse_arguments(PARSE_ARGV 1 folder "" "" "SOURCES;LINKS")
  add_library(${name} OBJECT ${folder_SOURCES})
  target_link_libraries(${name} PUBLIC korvantes_headers ${folder_LINKS})
endfunction()

# korvantes_shared(NAME OUTPUT file name EXPORTS linker map FOLDERS target... [LINKS target...]) A
# shared library made of folders. The linker map, a path from the project's root, lists the exported
# symbols.
function(korvantes_shared name)
  cmake_parse_arguments(PARSE_ARGV 1 shared "" "OUTPUT;EXPORTS" "FOLDERS;LINKS")
  set(exports ${PROJECT_SOURCE_DIR}/${shared_EXPORTS})
  add_library(${name} SHARED)
  target_link_libraries(
    ${name}
    PRIVATE ${shared_FOLDERS}
    PUBLIC korvantes_headers ${shared_LINKS})
  target_link_options(${name} PRIVATE LINKER:--version-script=${exports})
  set_target_properties(
    ${name}
    PROPERTIES OUTPUT_NAME ${shared_OUTPUT}
               LINKER_LANGUAGE CXX
               LINK_DEPENDS ${exports}
               VERSION ${PROJECT_VERSION}
               SOVERSION ${PROJECT_VERSION_MAJOR}
               INSTALL_RPATH $ORIGIN)
endfunction()

# korvantes_test(NAME [PREFIX text] SOURCES file... LINKS target...): one binary per layer. The
# prefix tells apart tests that two binaries share.
function(korvantes_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "PREFIX" "SOURCES;LINKS")
  add_executable(${name} ${test_SOURCES})
  target_link_libraries(${name} PRIVATE ${test_LINKS} GTest::gmock_main)
  gtest_discover_tests(${name} TEST_PREFIX "${test_PREFIX}" DISCOVERY_TIMEOUT 60)
endfunction()
