# The clerk's manual as pages for a browser. It lies below the programs' folder in the build
# tree as it does where it is installed, so that the desk finds it in both.
set(manual_folder "${PROJECT_BINARY_DIR}/share/tarnemissao/manual")
set(manual_source "${PROJECT_SOURCE_DIR}/docs/manual.md")
set(manual_screens "${CMAKE_CURRENT_SOURCE_DIR}/manual_screens.txt")
file(GLOB manual_pictures CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/manual/*.png")
add_custom_command(OUTPUT "${manual_folder}/index.html"
  COMMAND "${TARN_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/manual.py" "${manual_source}"
          "${manual_screens}" "${PROJECT_VERSION}" "${manual_folder}"
  DEPENDS manual.py "${manual_source}" "${manual_screens}" ${manual_pictures}
  COMMENT "Making the clerk's manual" VERBATIM)
add_custom_target(tarn_manual ALL DEPENDS "${manual_folder}/index.html")
install(DIRECTORY "${manual_folder}" DESTINATION "${CMAKE_INSTALL_DATADIR}/tarnemissao" COMPONENT desk)
