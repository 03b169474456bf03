# Read by ctest before it runs: an entry for each suite of ${program}, whose cases share one
# process, as most of what a small test takes is the start of its own. The names of the
# suites are kept in ${names} until the program changes.
if(NOT EXISTS "${program}")
  add_test("${entry}_NOT_BUILT" "${entry}_NOT_BUILT")
  return()
endif()

if("${program}" IS_NEWER_THAN "${names}")
  set(ENV{QT_QPA_PLATFORM} offscreen)
  execute_process(COMMAND "${program}" --gtest_list_tests OUTPUT_FILE "${names}"
                  RESULT_VARIABLE failed ERROR_VARIABLE told)
  if(failed)
    file(REMOVE "${names}")
    message(FATAL_ERROR "${program} does not list its tests: ${failed}\n${told}")
  endif()
endif()

# "Suite." or "Prefix/Suite.", perhaps with a comment after it; cases are indented.
file(STRINGS "${names}" lines REGEX "^[A-Za-z0-9_/]+\\.( |$)")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "\\..*" "" suite "${line}")
  add_test("${entry}.${suite}" "${program}" --gtest_brief=1 "--gtest_filter=${suite}.*")
  set_tests_properties("${entry}.${suite}" PROPERTIES ${properties})
endforeach()
