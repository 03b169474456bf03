# What every target of the project shares: warnings, sanitizers, optimisation, and the shape
# in which libraries are declared.

add_library(tarn_common_options INTERFACE)
# In a lump a local name may well be a neighbour's global one, and g++ takes its sources for
# headers, in which no class may have a field of a type without linkage.
set(tarn_in_lumps $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(tarn_common_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                       $<IF:${tarn_in_lumps},$<$<CXX_COMPILER_ID:GNU>:-Wshadow=local;-Wno-subobject-linkage>,-Wshadow>
                       -fstack-protector-strong)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies and overruns in "text" + std::string and in its like
  # (GCC bugs 105651 and 105329).
  target_compile_options(tarn_common_options INTERFACE -Wno-restrict -Wno-array-bounds
                         -Wno-stringop-overflow)
endif()
if(MINGW)
  target_link_options(tarn_common_options INTERFACE -fstack-protector-strong)  # from libssp
endif()
if(TARN_WERROR)
  target_compile_options(tarn_common_options INTERFACE -Werror)
endif()
if(TARN_SANITIZE)
  target_compile_options(tarn_common_options INTERFACE -fsanitize=address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer
                         # g++ sees uninitialized reads in instrumented library code
                         $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(tarn_common_options INTERFACE -fsanitize=address,undefined)
endif()
if(TARN_FUZZ)
  # Coverage for libFuzzer, whose main only the fuzzers link. Not its own -fsanitize=fuzzer-no-link:
  # that also records every comparison and turns inlining off, half of the runs a second; what
  # comparisons would teach stands in the dictionaries.
  target_compile_options(tarn_common_options INTERFACE -fsanitize-coverage=inline-8bit-counters,pc-table)
endif()

# Of product code alone: the presets leave the flags of a build type empty, so that test code
# is compiled alike in each of them and a compiler cache knows it again.
add_library(tarn_options INTERFACE)
target_link_libraries(tarn_options INTERFACE tarn_common_options)
target_compile_options(tarn_options INTERFACE $<$<CONFIG:Release>:-O2> $<$<CONFIG:Debug>:-g>)
target_compile_definitions(tarn_options INTERFACE $<$<CONFIG:Release>:NDEBUG>
                           $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

# What dpkg-buildflags gives with hardening=+all, and what later Debians add to it. Debian's
# compilers make position-independent code by themselves; _FORTIFY_SOURCE needs optimisation.
if(TARN_HARDEN)
  include(CheckCXXCompilerFlag)
  foreach(flag -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER "TARN_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      target_compile_options(tarn_options INTERFACE ${flag})
    endif()
  endforeach()
  target_compile_options(tarn_options INTERFACE -Wformat -Werror=format-security
                         -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  target_link_options(tarn_options INTERFACE
                      "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>" -Wl,-z,relro -Wl,-z,now)
endif()
if(UNIX)
  target_link_options(tarn_options INTERFACE -Wl,--as-needed)  # no library that nothing is taken of
endif()

# tarn_add_library(NAME): a static library whose rooms add their own sources; apps and
# practice include by their own folder's name.
function(tarn_add_library name)
  add_library(${name} STATIC)
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PRIVATE tarn_options)
  # Also so that a program has no copies of what a library holds, which a part wouldn't know of.
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ${TARN_LATE_PARTS})
endfunction()

# tarn_optimise(NAME...): libraries that compute. Where programs are built to be tried (preset
# quick, of no build type) the others aren't worth an optimiser's time, three times that of the
# compiler for the command line's templates: they wait for a user, a file or the toolkit.
function(tarn_optimise)
  foreach(name ${ARGN})
    target_compile_options(${name} PRIVATE $<$<CONFIG:None>:-O1>)
  endforeach()
endfunction()

# tarn_add_part(NAME LIBRARY): a part of the desk that gives away what its own sources hold,
# over a library: a file that the desk loads when it needs it (platform/parts), or linked to it.
function(tarn_add_part name library)
  if(TARN_LATE_PARTS)
    add_library(${name} MODULE)
    set_target_properties(${name} PROPERTIES PREFIX "" POSITION_INDEPENDENT_CODE ON
      LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib/tarnemissao/parts")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PRIVATE tarn_options)
    target_link_options(${name} PRIVATE -Wl,--exclude-libs,ALL)
    add_dependencies(tarn_parts ${name})
    # Two folders deep: CPack takes what lies in one for libraries that the loader's cache lists.
    install(TARGETS ${name} DESTINATION lib/tarnemissao/parts COMPONENT desk)
  else()
    tarn_add_library(${name})
    target_link_libraries(tarn_parts PRIVATE ${name})
  endif()
  target_link_libraries(${name} PRIVATE ${library})
endfunction()

# What nearly every file reads, precompiled once for each of the larger targets. A file
# includes what it uses all the same.
set(tarn_precompiled_std <algorithm> <array> <charconv> <cmath> <cstdint> <functional> <memory>
    <optional> <span> <string> <string_view> <utility> <variant> <vector>)
