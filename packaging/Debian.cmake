# The three packages: the desk, the tools, the practice session.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnemissao)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "${TARN_SUPPORT_NAME}")
set(CPACK_PACKAGE_CONTACT "${TARN_SUPPORT_NAME} <${TARN_SUPPORT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${TARN_VENDOR_SITE}/")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/pacotes")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL desk)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE tarnemissao)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0tarn1)  # none of Debian's own
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(exactly "(= ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# Beside the libraries: the texts of the toolkit in Portuguese, letters of Arial's widths for
# drawn pages, and those that a machine without a desktop's own takes for screens.
set(with_windows "qt6-translations-l10n, fonts-liberation, fonts-dejavu-core")

set(CPACK_DEBIAN_DESK_PACKAGE_NAME tarnemissao)
set(CPACK_DEBIAN_DESK_PACKAGE_DEPENDS "${with_windows}")
set(CPACK_DEBIAN_DESK_PACKAGE_RECOMMENDS "cups, xdg-utils")
set(CPACK_DEBIAN_DESK_PACKAGE_SUGGESTS "tarnemissao-treino")
set(CPACK_COMPONENT_DESK_DESCRIPTION "mesa de emissão de notas, duplicatas, boletos e cheques
O faturista entra no servidor da empresa e imprime os documentos de uma
venda nos formulários dela: notas fiscais, duplicatas, recibos, boletos,
cheques e etiquetas. Os dados ficam todos no servidor.")

if(TARN_BUILD_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL tools)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME tarnemissao-ferramentas)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${with_windows}")
  set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS "poppler-utils")
  set(CPACK_COMPONENT_TOOLS_DESCRIPTION "impressora matricial virtual e impressão de respostas gravadas
Para o suporte e para quem desenha formulários: tarnimpressora mostra no
papel o que uma impressora matricial imprimiria; tarnimprime imprime um
documento a partir de respostas gravadas, sem servidor e sem janela.")
endif()

if(TARN_BUILD_PRACTICE)
  list(APPEND CPACK_COMPONENTS_ALL practice)
  set(CPACK_DEBIAN_PRACTICE_PACKAGE_NAME tarnemissao-treino)
  set(CPACK_DEBIAN_PRACTICE_PACKAGE_DEPENDS
      "tarnemissao ${exactly}, tarnemissao-ferramentas ${exactly}, libqt6sql6-sqlite")
  set(CPACK_DEBIAN_PRACTICE_PACKAGE_SUGGESTS "libqt6sql6-psql")
  set(CPACK_COMPONENT_PRACTICE_DESCRIPTION "treino da mesa de emissão, com dados inventados
Abre a mesa com um servidor de treino e uma impressora virtual, e encerra
tudo quando a mesa é fechada. Nada é impresso de verdade.")
endif()

# What every package of Debian has: where it comes from, and what changed.
string(REGEX REPLACE ".*/" "" version_year "${TARN_VERSION_DATE}")
execute_process(COMMAND date -u -R -d "${version_day}" OUTPUT_VARIABLE version_moment
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
                ENCODING UTF-8)
configure_file(debian/copyright.in debian/copyright @ONLY)
configure_file(debian/changelog.in debian/changelog @ONLY)
execute_process(COMMAND gzip -9 -n -k -f changelog WORKING_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/debian"
                COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/debian/copyright"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/debian/changelog.gz" RENAME changelog.Debian.gz
          DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
endforeach()

include(CPack)
