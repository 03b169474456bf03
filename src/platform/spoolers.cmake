# The raw spoolers: a directory everywhere, and the system's own.
target_sources(tarn_platform PRIVATE
  directory/directory_spooler.cpp
  directory/job_files.cpp
  directory/new_file.cpp
  system_spooler.cpp)

if(WIN32)
  target_sources(tarn_platform PRIVATE winspool/winspool_spooler.cpp)
  target_compile_definitions(tarn_platform PUBLIC TARN_WITH_WINSPOOL)
  target_link_libraries(tarn_platform PRIVATE winspool)
elseif(CUPS_FOUND)
  target_sources(tarn_platform PRIVATE cups/cups_spooler.cpp)
  target_compile_definitions(tarn_platform PUBLIC TARN_WITH_CUPS)
  target_link_libraries(tarn_platform PRIVATE Cups::Cups)
endif()
