# What goes home with a player: the portable folder as `cmake --install` lays it down under the prefix, and
# the target "pacote", which packs it:
#   cmake --build --preset release --target pacote
#
# The executable is the one that the tests ran, stripped, with its Q_ASSERTs: a build without them would be
# another program that nobody has played, and a broken table is better stopped than played on with. What
# the player has stored is safe either way.

# Qt's own texts in Portuguese, for the portable folder.
get_target_property(qt_core_place Qt6::Core LOCATION)
get_filename_component(qt_core_place ${qt_core_place} DIRECTORY)
find_file(QUADRELO_QM qtbase_pt_BR.qm
  HINTS ${QT6_INSTALL_PREFIX} ${qt_core_place}/..
  PATH_SUFFIXES share/qt6/translations translations
  DOC "Qt's own texts in Brazilian Portuguese (Debian: qt6-translations-l10n)")
set(traducao ${QUADRELO_FOLDER}/translations/qtbase_pt_BR.qm)
if(QUADRELO_QM)
  add_custom_command(OUTPUT ${traducao}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${QUADRELO_FOLDER}/translations
    COMMAND ${CMAKE_COMMAND} -E copy ${QUADRELO_QM} ${QUADRELO_FOLDER}/translations
    DEPENDS ${QUADRELO_QM} VERBATIM)
  add_custom_target(traducao_da_pasta ALL DEPENDS ${traducao})
  add_dependencies(quadrelo traducao_da_pasta)
else()
  message(WARNING "qtbase_pt_BR.qm not found: the context menus of text boxes will be in English")
endif()

# The folder's place under the prefix. Nothing else is installed, so nothing else need be built for it.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(lugar Quadrelo)
install(TARGETS quadrelo RUNTIME DESTINATION ${lugar})
install(FILES ${QUADRELO_FOLDER}/Perguntas.tes ${sons_da_pasta} LEIA-ME.md PROFESSORES.md DESTINATION ${lugar})
# For those who make banks of their own.
install(TARGETS compila_banco monta RUNTIME DESTINATION ${lugar}/ferramentas)
install(FILES ${QUADRELO_EXEMPLO} DESTINATION ${lugar}/ferramentas)
install(FILES docs/tabuleiro.png docs/balao.png DESTINATION ${lugar}/docs)
# Not an empty folder: some who unpack would leave it out.
install(FILES assets/Dados.txt DESTINATION ${lugar}/Dados RENAME LEIA-ME.txt)
if(QUADRELO_QM)
  install(FILES ${traducao} DESTINATION ${lugar}/translations)
endif()

string(TOLOWER ${CMAKE_SYSTEM_NAME} sistema)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  # The name of the menu entry is how a desktop knows whose window it sees.
  set(QUADRELO_ID com.example.quadrelo)
  target_compile_definitions(quadrelo PRIVATE QUADRELO_ID="${QUADRELO_ID}")
  foreach(programa quadrelo compila_banco monta)
    target_link_options(${programa} PRIVATE $<$<CONFIG:Release>:-s>)
  endforeach()

  set(QUADRELO_FICHA ${PROJECT_BINARY_DIR}/generated/${QUADRELO_ID}.metainfo.xml)
  configure_file(assets/linux/${QUADRELO_ID}.metainfo.xml.in ${QUADRELO_FICHA} @ONLY)
  foreach(lado 16 22 24 32 48 64 128 256)
    list(APPEND icones assets/figuras/Icone${lado}.png)
  endforeach()
  install(PROGRAMS assets/linux/instalar.sh DESTINATION ${lugar})
  install(PROGRAMS assets/linux/abrir.sh DESTINATION ${lugar}/linux)
  install(FILES assets/linux/${QUADRELO_ID}.desktop ${QUADRELO_FICHA} ${icones} assets/figuras/quadrelo.svg
    DESTINATION ${lugar}/linux)
endif()

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(empacota ${PROJECT_SOURCE_DIR}/tools/make-linux-package ${PROJECT_BINARY_DIR})
else()
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_NAME Quadrelo)
  set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
  set(CPACK_PACKAGE_FILE_NAME Quadrelo-${PROJECT_VERSION}-${sistema})
  # The archive holds the folder "Quadrelo" and nothing round it.
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_VERBATIM_VARIABLES ON)
  include(CPack)
  set(empacota ${CMAKE_CPACK_COMMAND})
endif()

add_custom_target(pacote
  COMMAND ${empacota}
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMENT "Packing the portable folder" VERBATIM USES_TERMINAL)
add_dependencies(pacote quadrelo banco sons_da_pasta)
