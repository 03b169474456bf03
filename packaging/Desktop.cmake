# Menu entries, icons, and what a catalogue of software shows.

# The site's name turned round names the program in catalogues.
string(REGEX REPLACE "^www\\." "" vendor_domain "${TARN_VENDOR_SITE}")
string(REPLACE "." ";" vendor_domain "${vendor_domain}")
list(REVERSE vendor_domain)
list(JOIN vendor_domain "." vendor_id)
string(REGEX REPLACE "(..)/(..)/(....)" "\\3-\\2-\\1" version_day "${TARN_VERSION_DATE}")
configure_file(tarnemissao.metainfo.xml.in "${CMAKE_CURRENT_BINARY_DIR}/${vendor_id}.tarnemissao.metainfo.xml"
               @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${vendor_id}.tarnemissao.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT desk)

find_program(TARN_RSVG_CONVERT rsvg-convert)
if(NOT TARN_RSVG_CONVERT)
  message(STATUS "rsvg-convert was not found: icons are installed as scalable pictures alone")
endif()

# tarn_icon(NAME COMPONENT PICTURE): the picture in the sizes that menus ask for.
function(tarn_icon name component picture)
  set(source "${PROJECT_SOURCE_DIR}/src/widgets/pictures/${picture}.svg")
  set(theme "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
  install(FILES "${source}" DESTINATION "${theme}/scalable/apps" RENAME ${name}.svg
          COMPONENT ${component})
  if(NOT TARN_RSVG_CONVERT)
    return()
  endif()
  set(made)
  foreach(side 48 64 128)
    set(icon "${CMAKE_CURRENT_BINARY_DIR}/icons/${side}/${name}.png")
    add_custom_command(OUTPUT "${icon}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/icons/${side}"
      COMMAND "${TARN_RSVG_CONVERT}" -w ${side} -h ${side} -o "${icon}" "${source}"
      DEPENDS "${source}" VERBATIM)
    install(FILES "${icon}" DESTINATION "${theme}/${side}x${side}/apps" COMPONENT ${component})
    list(APPEND made "${icon}")
  endforeach()
  add_custom_target(${name}_icons ALL DEPENDS ${made})
endfunction()

# tarn_menu_entry(NAME COMPONENT)
function(tarn_menu_entry name component)
  install(FILES ${name}.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications"
          COMPONENT ${component})
endfunction()

tarn_menu_entry(tarnemissao desk)
tarn_icon(tarnemissao desk tarnemissao)
if(TARN_BUILD_TOOLS)
  tarn_menu_entry(tarnimpressora tools)
  tarn_icon(tarnimpressora tools print)
endif()
if(TARN_BUILD_PRACTICE)
  tarn_menu_entry(tarnemissao-treino practice)
endif()
