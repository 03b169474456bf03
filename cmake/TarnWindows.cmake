# What a program of Windows carries: its icon, its version, and what it expects of the system.
set(tarn_windows_folder "${PROJECT_SOURCE_DIR}/packaging/windows")
set(tarn_icon "${PROJECT_BINARY_DIR}/generated/tarnemissao.ico")

# The one icon in the sizes that Windows shows.
function(tarn_draw_icon)
  find_program(TARN_ICOTOOL icotool REQUIRED)
  set(pictures)
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/generated")
  foreach(side 16 20 24 32 40 48 64 256)
    set(picture "${PROJECT_BINARY_DIR}/generated/icon-${side}.png")
    tarn_draw_svg("${PROJECT_SOURCE_DIR}/src/widgets/pictures/tarnemissao.svg" ${side} "${picture}")
    if(side EQUAL 256)
      list(APPEND pictures "--raw=${picture}")
    else()
      list(APPEND pictures "${picture}")
    endif()
  endforeach()
  execute_process(COMMAND "${TARN_ICOTOOL}" --create "--output=${tarn_icon}" ${pictures}
                  COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# tarn_windows_program(NAME DESCRIPTION): the description is what Windows shows of it in
# Portuguese. Nothing elsewhere.
function(tarn_windows_program name description)
  if(NOT WIN32)
    return()
  endif()
  set(TARN_PROGRAM ${name})
  set(TARN_DESCRIPTION "${description}")
  string(REPLACE "." "," TARN_VERSION_NUMBERS "${PROJECT_VERSION}")
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${name}.rc")
  configure_file("${tarn_windows_folder}/program.rc.in" "${resources}" @ONLY)
  target_sources(${name} PRIVATE "${resources}")
  set_source_files_properties("${resources}" PROPERTIES LANGUAGE RC
    OBJECT_DEPENDS "${tarn_icon};${tarn_windows_folder}/program.manifest")
endfunction()

if(WIN32)
  enable_language(RC)
  tarn_draw_icon()
endif()
