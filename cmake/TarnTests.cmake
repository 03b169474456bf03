# How tests are declared, and what they share.

# Test code runs once and is compiled often: it is worth neither optimising nor symbols for a
# debugger (-DCMAKE_CXX_FLAGS=-g brings them). Qt asks for position-independent code; with it
# everywhere one precompiled header serves all. Nothing depends on the build type,
# QT_NO_DEBUG neither, which Qt leaves out for Debug.
add_library(tarn_test_options INTERFACE)
target_link_libraries(tarn_test_options INTERFACE tarn_common_options)
target_compile_options(tarn_test_options INTERFACE
                       $<$<CXX_COMPILER_ID:GNU,Clang>:-O0;-fPIC>)
target_compile_definitions(tarn_test_options INTERFACE QT_NO_DEBUG)

set(tarn_precompiled_test ${tarn_precompiled_std} <fstream> <map> <set> <sstream>
    <gmock/gmock.h> <gtest/gtest.h>)

# tarn_add_test_library(NAME SOURCES ... LIBRARIES ...): what several tests share. Those that
# link tarn_screen_support read its precompiled header, the others that of tarn_test_headers.
function(tarn_add_test_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PUBLIC ${arg_LIBRARIES} GTest::gtest GTest::gmock
                        PRIVATE tarn_test_options)
  tarn_share_test_code(${name} "${arg_LIBRARIES}")
endfunction()

# Most of the code of a test source are the templates and fixtures that it shares with its
# neighbours: sources are compiled in lumps, which hold them once, so names without linkage
# are one program's, not one file's.
function(tarn_share_test_code name libraries)
  set_target_properties(${name} PROPERTIES UNITY_BUILD ${TARN_LUMPS} UNITY_BUILD_BATCH_SIZE 8)
  if("tarn_screen_support" IN_LIST libraries)
    target_precompile_headers(${name} REUSE_FROM tarn_screen_support)
  else()
    target_precompile_headers(${name} REUSE_FROM tarn_test_headers)
  endif()
endfunction()

# tarn_add_test(NAME LABEL label SOURCES ... LIBRARIES ...): a GoogleTest program, one ctest
# entry for each of its cases. A program that brings its own main (QT) is linked without
# gtest_main and runs off-screen. PROPERTIES are those of ctest, for each case; its time
# limit is the test preset's.
function(tarn_add_test name)
  cmake_parse_arguments(arg "QT" "LABEL" "SOURCES;LIBRARIES;PROPERTIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE tarn_test_options ${arg_LIBRARIES} GTest::gmock
                        $<IF:$<BOOL:${arg_QT}>,GTest::gtest,GTest::gtest_main>)
  tarn_share_test_code(${name} "${arg_LIBRARIES}")
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES LABELS "${arg_LABEL}" ${arg_PROPERTIES}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
