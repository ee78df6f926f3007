# SPDX-License-Identifier: MIT
# One helper per kind of target, so that every folder states only its sources and what it leans on.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

option(SEAPLAN_FUZZ "build the fuzz targets (clang only)" OFF)
set(SEAPLAN_SANITIZE "" CACHE STRING "comma separated sanitizers for every target")
if(SEAPLAN_SANITIZE)
  add_compile_options(-fsanitize=${SEAPLAN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${SEAPLAN_SANITIZE})
endif()
if(SEAPLAN_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=function)
  add_link_options(-fsanitize=address,undefined)
endif()

function(seaplan_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
  # Where texts are assigned and joined, g++ 12's optimiser sees overlapping, endless and overlong copies that are none
  # (its bugs 105651, 105329 and 105545).
  target_compile_options(${target} PRIVATE
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>)
  # What only the optimiser believes to see never keeps a person from building the client.
  set(gnu_optimised $<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<CONFIG:Debug>>>)
  target_compile_options(${target} PRIVATE
    $<${gnu_optimised}:-Wno-stringop-overread;-Wno-error=maybe-uninitialized;-Wno-error=dangling-pointer>
    $<${gnu_optimised}:-Wno-error=use-after-free;-Wno-error=free-nonheap-object>)
endfunction()

function(seaplan_common target)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  seaplan_warnings(${target})
endfunction()

function(seaplan_library target)
  cmake_parse_arguments(arg "" "" "SOURCES;DEPS;PRIVATE_DEPS" ${ARGN})
  add_library(${target} STATIC ${arg_SOURCES})
  seaplan_common(${target})
  seaplan_precompile(${target} library)
  target_link_libraries(${target} PUBLIC ${arg_DEPS} PRIVATE ${arg_PRIVATE_DEPS})
endfunction()

function(seaplan_program target)
  cmake_parse_arguments(arg "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${target} ${arg_SOURCES})
  seaplan_common(${target})
  target_link_libraries(${target} PRIVATE ${arg_DEPS})
endfunction()

# Tests run without a display, in a zone and locale that differ from the usual ones, so that neither can hide in a result.
function(seaplan_test target)
  if(NOT BUILD_TESTING)
    return()
  endif()
  cmake_parse_arguments(arg "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${target} ${arg_SOURCES})
  seaplan_common(${target})
  # Qt asks for it, and all tests share one precompiled file.
  target_compile_options(${target} PRIVATE -fPIC)
  seaplan_precompile(${target} test)
  target_link_libraries(${target} PRIVATE ${arg_DEPS} GTest::gtest_main GTest::gmock)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${target} COMMAND ${target})
  # A home of the tests' own: caches and settings of fonts and windows are not to touch the person's.
  set(home ${CMAKE_BINARY_DIR}/tests/home)
  file(MAKE_DIRECTORY ${home})
  set_tests_properties(${target} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=America/St_Johns;LC_ALL=C.UTF-8;QT_SCALE_FACTOR=1;HOME=${home};XDG_CACHE_HOME=${home}/.cache;XDG_CONFIG_HOME=${home}/.config;XDG_DATA_HOME=${home}/.local/share")
endfunction()
