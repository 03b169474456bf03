# Manual pages and completions, from what each program tells of its own command line.
string(REGEX REPLACE "(..)/(..)/(....)" "\\3-\\2-\\1" version_day "${TARN_VERSION_DATE}")
find_program(TARN_GZIP gzip)
# A program that only describes itself needn't account for its memory.
set(with_python "${TARN_PYTHON}" -B)
if(TARN_SANITIZE)
  list(PREPEND with_python "${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0)
endif()
set(description_scripts completion.py description.py man_page.py)

# tarn_document(PROGRAM COMPONENT): its page and completion, made with all.
function(tarn_document program component)
  set(page "${CMAKE_CURRENT_BINARY_DIR}/${program}.1")
  set(completion "${CMAKE_CURRENT_BINARY_DIR}/completions/${program}")
  set(others ${ARGN})
  list(REMOVE_ITEM others ${program})
  list(JOIN others "," others)
  file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/completions")
  add_custom_command(OUTPUT "${page}.gz" "${completion}"
    COMMAND ${with_python} "${CMAKE_CURRENT_SOURCE_DIR}/man_page.py" "$<TARGET_FILE:${program}>"
            "${PROJECT_VERSION}" "${version_day}" "${others}" "${page}"
    COMMAND "${TARN_GZIP}" -9 -n -f -k "${page}"
    COMMAND ${with_python} "${CMAKE_CURRENT_SOURCE_DIR}/completion.py"
            "$<TARGET_FILE:${program}>" "${completion}"
    DEPENDS ${program} ${description_scripts}
    COMMENT "Making the manual page of ${program}" VERBATIM)
  add_custom_target(${program}_page ALL DEPENDS "${page}.gz" "${completion}")
  install(FILES "${page}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT ${component})
  install(FILES "${completion}" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
          COMPONENT ${component})
endfunction()

set(documented tarnemissao)
if(TARN_BUILD_TOOLS)
  list(APPEND documented tarnimpressora tarnimprime)
endif()
if(TARN_BUILD_PRACTICE)
  list(APPEND documented tarnemissao-treino tarnservidor)
endif()
tarn_document(tarnemissao desk ${documented})
if(TARN_BUILD_TOOLS)
  tarn_document(tarnimpressora tools ${documented})
  tarn_document(tarnimprime tools ${documented})
endif()
if(TARN_BUILD_PRACTICE)
  tarn_document(tarnemissao-treino practice ${documented})
  tarn_document(tarnservidor practice ${documented})
endif()
