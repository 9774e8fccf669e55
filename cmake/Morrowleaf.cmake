# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# What every target shares: the language, the warnings, the sanitizers, and the
# functions that add a library, a reader program and a test.

include_guard(GLOBAL)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON) # all generated sources at once, for clang-tidy
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF) # without building what they are linked with
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(MORROWLEAF_SANITIZE "" CACHE STRING "Sanitizers for every target, such as address,undefined")
option(MORROWLEAF_BENCHMARKS "Build the benchmarks (needs Google Benchmark)" OFF)
option(MORROWLEAF_HARDEN "Build as distributions do, with what makes faults harder to exploit" OFF)
option(MORROWLEAF_FUZZ "Build the libFuzzer targets (needs clang)" OFF)

# Makes ccache hash paths in the source tree as relative ones, so that clones in
# different folders share its results.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_CXX_COMPILER_LAUNCHER})
endif()

add_library(morrowleaf_options INTERFACE)
target_include_directories(morrowleaf_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(morrowleaf_options INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wconversion>)
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # GCC warns of anonymous namespaces in every file but the one that it was given.
  target_compile_options(morrowleaf_options INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wno-subobject-linkage>)
endif()
target_compile_definitions(morrowleaf_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH)
if(MORROWLEAF_SANITIZE)
  target_compile_options(morrowleaf_options INTERFACE
    -fsanitize=${MORROWLEAF_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(morrowleaf_options INTERFACE -fsanitize=${MORROWLEAF_SANITIZE})
endif()
if(MORROWLEAF_HARDEN)
  include(CheckPIESupported)
  check_pie_supported()
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|i.86)$") # an error on others
    add_compile_options(-fcf-protection)
  endif()
  add_compile_options(-fstack-protector-strong -fstack-clash-protection
    -Wformat -Werror=format-security -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
    # The same bytes from every folder.
    -ffile-prefix-map=${PROJECT_BINARY_DIR}=. -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()
if(MORROWLEAF_FUZZ)
  target_compile_options(morrowleaf_options INTERFACE -fsanitize=fuzzer-no-link,address)
  target_link_options(morrowleaf_options INTERFACE -fsanitize=address)
endif()

# morrowleaf_library(NAME SOURCES file... [LIBRARIES target...])
function(morrowleaf_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  if(arg_SOURCES)
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC morrowleaf_options ${arg_LIBRARIES})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE morrowleaf_options ${arg_LIBRARIES})
  endif()
endfunction()

# What a backend needs to confine a program. Programs that do not confine themselves need
# not load it.
add_library(morrowleaf_jail INTERFACE)
target_link_libraries(morrowleaf_jail INTERFACE morrowleaf_system)

# morrowleaf_reader(NAME SOURCES file... LIBRARIES target...)
# A program that reads what strangers wrote, for morrowleaf and for tests. They look for it
# in ../libexec/morrowleaf beside their own folder, installed or not.
add_custom_target(readers)
function(morrowleaf_reader name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} morrowleaf_jail)
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/libexec/morrowleaf)
  add_dependencies(readers ${name})
endfunction()

# Everything that tests with the label "unit" need, and all fuzzers.
add_custom_target(unit_tests)
add_custom_target(fuzzers)

# morrowleaf_test(NAME SOURCES file... [LIBRARIES target...] [LABEL unit|system] [GUI])
# One GoogleTest program; ctest runs each of its tests separately. A GUI test
# runs in a QApplication on Qt's offscreen platform. A system test observes
# other processes and has a longer timeout.
function(morrowleaf_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "GUI" "LABEL" "SOURCES;LIBRARIES")
  set(main morrowleaf_coremain)
  if(arg_GUI)
    set(main morrowleaf_guimain)
  endif()
  if(NOT arg_LABEL)
    set(arg_LABEL unit)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${main} ${arg_LIBRARIES} morrowleaf_sourcepath GTest::gmock)
  add_dependencies(${name} readers)
  if(arg_LABEL STREQUAL unit)
    add_dependencies(unit_tests ${name})
  endif()
  # The printed values of parameters may contain addresses, which change in every run.
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 TEST_PREFIX "${name}." NO_PRETTY_VALUES
    PROPERTIES LABELS ${arg_LABEL} TIMEOUT $<IF:$<STREQUAL:${arg_LABEL},system>,600,120>)
endfunction()
