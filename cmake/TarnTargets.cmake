# What every target of the project shares: warnings, sanitizers, and the two
# shapes in which libraries and tests are declared.

add_library(tarn_options INTERFACE)
target_compile_options(tarn_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                       -fstack-protector-strong)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies in "text" + std::string (GCC bug 105651).
  target_compile_options(tarn_options INTERFACE -Wno-restrict)
endif()
if(TARN_WERROR)
  target_compile_options(tarn_options INTERFACE -Werror)
endif()
if(TARN_SANITIZE)
  target_compile_options(tarn_options INTERFACE -fsanitize=address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer
                         # g++ sees uninitialized reads in instrumented library code
                         $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(tarn_options INTERFACE -fsanitize=address,undefined)
endif()
if(TARN_FUZZ)
  # Coverage for libFuzzer; only the fuzzers themselves link its main.
  target_compile_options(tarn_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(tarn_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tarn_add_library(NAME): a static library whose rooms add their own sources; apps and
# practice include by their own folder's name.
function(tarn_add_library name)
  add_library(${name} STATIC)
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PRIVATE tarn_options)
endfunction()

# tarn_add_test(NAME LABEL label SOURCES ... LIBRARIES ...): a GoogleTest
# program, one ctest entry for each of its cases. A program that brings its own
# main (QT) is linked without gtest_main and runs off-screen.
function(tarn_add_test name)
  cmake_parse_arguments(arg "QT" "LABEL;TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  if(arg_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE tarn_options ${arg_LIBRARIES} GTest::gtest GTest::gmock)
  else()
    target_link_libraries(${name} PRIVATE tarn_options ${arg_LIBRARIES} GTest::gtest_main GTest::gmock)
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES LABELS "${arg_LABEL}" TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false;ASAN_OPTIONS=detect_leaks=0")
endfunction()
