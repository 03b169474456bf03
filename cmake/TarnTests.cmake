# How tests are declared, and what they share.

# Test code runs once and is compiled often: it is worth neither optimising nor symbols for a
# debugger (-DCMAKE_CXX_FLAGS=-g brings them); only fuzzers run it thousands of times a second. Qt
# asks for position-independent code; with it everywhere one precompiled header serves all. Nothing
# depends on the build type, QT_NO_DEBUG neither, which Qt leaves out for Debug.
add_library(tarn_test_options INTERFACE)
target_link_libraries(tarn_test_options INTERFACE tarn_common_options)
target_compile_options(tarn_test_options INTERFACE
                       $<$<CXX_COMPILER_ID:GNU,Clang>:-fPIC;$<$<NOT:$<BOOL:${TARN_FUZZ}>>:-O0>>)
target_compile_definitions(tarn_test_options INTERFACE QT_NO_DEBUG)
if(WIN32)  # what Qt defines there has its part in the system's headers
  target_link_libraries(tarn_test_options INTERFACE Qt6::Platform)
endif()
# What a lump needs is let go of only with its end, so that g++ needn't look for garbage.
target_compile_options(tarn_test_options INTERFACE
                       $<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=524288>)  # KiB
# Of the linkers that Debian's binutils bring the one that takes a quarter of the time.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold TARN_GOLD)
if(TARN_GOLD)
  target_link_options(tarn_test_options INTERFACE -fuse-ld=gold)
endif()

set(tarn_precompiled_test ${tarn_precompiled_std} <fstream> <map> <set> <sstream>
    <gmock/gmock.h> <gtest/gtest.h>)

# tarn_add_test_library(NAME SOURCES ... LIBRARIES ...): what several tests share. Those that
# link tarn_screen_support read its precompiled header, the others that of tarn_test_headers.
function(tarn_add_test_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  if("tarn_core" IN_LIST arg_LIBRARIES)
    list(PREPEND arg_LIBRARIES tarn_recorders)
  endif()
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

# tarn_add_test(NAME LABEL label SOURCES ... LIBRARIES ...): a GoogleTest program. A program
# that brings its own main (QT) is linked without gtest_main and runs off-screen. It is known
# to ctest by its suites, or in SHARDS parts of its cases, for suites that mostly wait and can
# do so side by side. PROPERTIES are those of ctest, for each entry; its time limit is the
# test preset's.
function(tarn_add_test name)
  cmake_parse_arguments(arg "QT" "LABEL;SHARDS" "SOURCES;LIBRARIES;PROPERTIES" ${ARGN})
  if("tarn_core" IN_LIST arg_LIBRARIES)
    list(PREPEND arg_LIBRARIES tarn_recorders)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE tarn_test_options ${arg_LIBRARIES} GTest::gmock
                        $<IF:$<BOOL:${arg_QT}>,GTest::gtest,GTest::gtest_main>)
  tarn_share_test_code(${name} "${arg_LIBRARIES}")
  if(NOT arg_LABEL STREQUAL "x11")
    list(APPEND arg_PROPERTIES PROCESSORS 3)
  endif()
  if(arg_SHARDS)
    tarn_enter_shards(${name} ${arg_SHARDS} LABELS "${arg_LABEL}" ${arg_PROPERTIES})
  else()
    tarn_enter_suites(${name} ${name} LABELS "${arg_LABEL}" ${arg_PROPERTIES}
                      ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endif()
endfunction()

# tarn_enter_suites(NAME ENTRY PROPERTY VALUE ...): the suites of a program, as ENTRY.Suite.
function(tarn_enter_suites name entry)
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${entry}_suites.cmake")
  file(GENERATE OUTPUT "${script}" CONTENT "\
set(program \"$<TARGET_FILE:${name}>\")
set(entry \"${entry}\")
set(names \"${CMAKE_CURRENT_BINARY_DIR}/${entry}_suites.txt\")
set(properties \"${ARGN}\")
include(\"${PROJECT_SOURCE_DIR}/cmake/AddSuites.cmake\")
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# tarn_enter_shards(NAME COUNT PROPERTY VALUE ...): every COUNT-th case of a program each. They
# take longest and begin first, so that at the end no processor waits for them.
function(tarn_enter_shards name count)
  foreach(part RANGE 1 ${count})
    math(EXPR index "${part} - 1")
    add_test(NAME ${name}.${part} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name}.${part} PROPERTIES ${ARGN} COST 100
      ENVIRONMENT "GTEST_TOTAL_SHARDS=${count};GTEST_SHARD_INDEX=${index}")
  endforeach()
endfunction()
