tarn_add_test(directory_spooler_test LABEL unit SOURCES directory_spooler_test.cpp
  picture_folder_test.cpp
  LIBRARIES tarn_platform)

if(WIN32)
  tarn_add_test(winspool_test LABEL unit SOURCES winspool_spooler_test.cpp
    LIBRARIES tarn_core tarn_platform)
  target_compile_definitions(winspool_test PRIVATE
    TARN_NOTE_DATA="${PROJECT_SOURCE_DIR}/tests/notes/data")
endif()

if(CUPS_FOUND)
  tarn_add_test(cups_unreachable_test LABEL unit SOURCES cups_unreachable_test.cpp
    LIBRARIES tarn_platform)
  tarn_add_test(cups_silent_test LABEL unit SOURCES cups_silent_test.cpp
    LIBRARIES tarn_core tarn_platform)
  # One server for all its cases when run as a program, one for each under ctest.
  tarn_add_test(cups_spooler_test LABEL cups SOURCES cups_spooler_test.cpp
    LIBRARIES tarn_core tarn_platform tarn_test_support Cups::Cups)
  tarn_add_test(cups_troubles_test LABEL cups SOURCES cups_troubles_test.cpp
    LIBRARIES tarn_core tarn_platform tarn_test_support)
  tarn_add_test(cups_note_test LABEL cups SOURCES cups_note_test.cpp
    LIBRARIES tarn_core tarn_platform tarn_test_support)
  target_compile_definitions(cups_note_test PRIVATE
    TARN_NOTE_DATA="${PROJECT_SOURCE_DIR}/tests/notes/data")
endif()
