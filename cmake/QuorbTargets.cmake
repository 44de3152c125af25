# Targets that every library and program of this project shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(quorb_warnings INTERFACE)
target_compile_options(quorb_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 sees overlapping copies in std::string's operator+ where there are none.
target_compile_options(quorb_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

if(QUORB_SANITIZE)
  add_compile_options(-fsanitize=${QUORB_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${QUORB_SANITIZE})
endif()

# A library of one folder: every .cpp file that stands in it, its own headers, and the libraries it may see.
function(quorb_library name)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE_LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE quorb_warnings ${ARG_PRIVATE_LINK})
endfunction()

# What the sources of tests are compiled with: they need no speed, and to watch the tests themselves for undefined
# behaviour would double their compile time.
function(quorb_test_flags name)
  target_compile_options(${name} PRIVATE -O0)
  if(QUORB_SANITIZE)
    target_compile_options(${name} PRIVATE -fno-sanitize=undefined)
  endif()
endfunction()

# The test library's headers for the test program `name`, compiled once for `owner`, whose compiler flags must be
# the same. Each program with Qt owns its own: Qt names the folder of the tests in its flags.
function(quorb_test_headers name owner)
  if(name STREQUAL owner)
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
  else()
    target_precompile_headers(${name} REUSE_FROM ${owner})
  endif()
endfunction()

# A test program over the .cpp files of one folder of tests/. REAL_TIME: it watches other programs, and is judged
# as tests/run-tests tells.
function(quorb_test name folder)
  cmake_parse_arguments(ARG "REAL_TIME" "HEADERS_OF" "LINK" ${ARGN})
  if(NOT ARG_HEADERS_OF)
    set(ARG_HEADERS_OF math_tests)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
  quorb_test_flags(${name})
  quorb_test_headers(${name} ${ARG_HEADERS_OF})
  target_link_libraries(${name} PRIVATE quorb_warnings ${ARG_LINK} GTest::gmock GTest::gtest_main)
  set(labels)
  if(ARG_REAL_TIME)
    set(labels LABELS real_time)
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 ${labels})
endfunction()
