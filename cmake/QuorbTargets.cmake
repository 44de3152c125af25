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

# What a program of tests is compiled with: the tests need no speed, and most of their compile time is the test
# library's headers.
function(quorb_test_flags name)
  target_compile_options(${name} PRIVATE -O0)
endfunction()

# Those headers, compiled once for all programs that have no further compiler flags.
function(quorb_test_headers name)
  target_precompile_headers(${name} REUSE_FROM quorb_test_library)
endfunction()

# A test program over the .cpp files of one folder of tests/.
# REAL_TIME: its tests of that filter watch other programs, and are judged as tests/run-tests tells.
# OWN_HEADERS: its compiler flags are its own.
function(quorb_test name folder)
  cmake_parse_arguments(ARG "OWN_HEADERS" "REAL_TIME" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
  quorb_test_flags(${name})
  if(ARG_OWN_HEADERS)
    target_precompile_headers(${name} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
  else()
    quorb_test_headers(${name})
  endif()
  target_link_libraries(${name} PRIVATE quorb_warnings ${ARG_LINK} GTest::gmock GTest::gtest_main)
  if(ARG_REAL_TIME)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 TEST_FILTER ${ARG_REAL_TIME}
      PROPERTIES TIMEOUT 300 LABELS real_time)
  endif()
  if(NOT ARG_REAL_TIME STREQUAL "*")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 TEST_FILTER "-${ARG_REAL_TIME}" TEST_LIST ${name}_others
      PROPERTIES TIMEOUT 300)
  endif()
endfunction()
