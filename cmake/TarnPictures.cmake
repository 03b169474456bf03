# The pictures of the screens: as they were drawn where there is Qt Svg, else in the sizes
# that screens ask for, made when the build is configured.

# tarn_draw_svg(DRAWING HEIGHT PICTURE): as PNG, unless that is newer.
function(tarn_draw_svg drawing height picture)
  find_program(TARN_RSVG rsvg-convert REQUIRED)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${drawing}")
  if("${drawing}" IS_NEWER_THAN "${picture}")
    execute_process(COMMAND "${TARN_RSVG}" --keep-aspect-ratio "--height=${height}"
                            "--output=${picture}" "${drawing}"
                    COMMAND_ERROR_IS_FATAL ANY)
  endif()
endfunction()

# tarn_draw_pictures(FOLDER RESOURCES): all drawings of the folder, each in all sizes, and
# the list of resources that holds them.
function(tarn_draw_pictures folder resources)
  get_filename_component(made "${resources}" DIRECTORY)
  file(MAKE_DIRECTORY "${made}")
  file(GLOB drawings CONFIGURE_DEPENDS "${folder}/*.svg")
  set(files)
  foreach(drawing IN LISTS drawings)
    get_filename_component(name "${drawing}" NAME_WE)
    set(heights ${ARGN})
    if(name STREQUAL "banner")
      set(heights 192)
    endif()
    foreach(height IN LISTS heights)
      tarn_draw_svg("${drawing}" ${height} "${made}/${name}-${height}.png")
      string(APPEND files "    <file>${name}-${height}.png</file>\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT "${resources}" @ONLY CONTENT
       "<RCC>\n  <qresource prefix=\"/desk\">\n${files}  </qresource>\n</RCC>\n")
endfunction()
