# SPDX-License-Identifier: MIT
# Common headers, compiled once for libraries and once for tests. Off where a tool reads the compile commands: it cannot
# read another compiler's file.
option(SEAPLAN_PCH "precompile the common headers" OFF)

if(SEAPLAN_PCH)
  add_library(seaplan_pch_library OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled/Empty.cpp)
  seaplan_warnings(seaplan_pch_library)
  target_precompile_headers(seaplan_pch_library PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled/Library.h)
  if(BUILD_TESTING)
    add_executable(seaplan_pch_test ${PROJECT_SOURCE_DIR}/cmake/precompiled/Empty.cpp)
    seaplan_warnings(seaplan_pch_test)
    target_compile_options(seaplan_pch_test PRIVATE -fPIC)
    target_link_libraries(seaplan_pch_test PRIVATE GTest::gtest GTest::gmock)
    target_precompile_headers(seaplan_pch_test PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled/Test.h)
  endif()
endif()

# `kind` is library or test: what the target's sources include at their beginning.
function(seaplan_precompile target kind)
  if(SEAPLAN_PCH)
    target_precompile_headers(${target} REUSE_FROM seaplan_pch_${kind})
  endif()
endfunction()
