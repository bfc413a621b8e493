# The portable folder that a player gets: the executable, the question bank, the six sounds, what there is to
# read with its pictures, the programs for banks of one's own, and the folder for what the game writes.
set(QUADRELO_FOLDER ${PROJECT_BINARY_DIR}/Quadrelo)
set_target_properties(quadrelo PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${QUADRELO_FOLDER})

quadrelo_compile_bank(banco ${PROJECT_SOURCE_DIR}/assets/perguntas.tsv ${QUADRELO_FOLDER}/Perguntas.tes)
add_dependencies(quadrelo banco)

configure_file(assets/Dados.txt ${QUADRELO_FOLDER}/Dados/LEIA-ME.txt COPYONLY)
foreach(som click select acerto1 acerto2 erro1 erro2)
  add_custom_command(OUTPUT ${QUADRELO_FOLDER}/${som}.wav
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/assets/sons/${som}.wav ${QUADRELO_FOLDER}
    DEPENDS ${PROJECT_SOURCE_DIR}/assets/sons/${som}.wav VERBATIM)
  list(APPEND sons_da_pasta ${QUADRELO_FOLDER}/${som}.wav)
endforeach()
add_custom_target(sons_da_pasta ALL DEPENDS ${sons_da_pasta})

set(leitura LEIA-ME.md PROFESSORES.md docs/tabuleiro.png docs/balao.png)
foreach(arquivo IN LISTS leitura)
  cmake_path(GET arquivo PARENT_PATH lugar)
  add_custom_command(OUTPUT ${QUADRELO_FOLDER}/${arquivo}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${QUADRELO_FOLDER}/${lugar}
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/${arquivo} ${QUADRELO_FOLDER}/${arquivo}
    DEPENDS ${PROJECT_SOURCE_DIR}/${arquivo} VERBATIM)
  list(APPEND leitura_da_pasta ${QUADRELO_FOLDER}/${arquivo})
endforeach()
add_custom_target(leitura_da_pasta ALL DEPENDS ${leitura_da_pasta})
add_dependencies(quadrelo leitura_da_pasta)

set(QUADRELO_EXEMPLO ${PROJECT_SOURCE_DIR}/assets/exemplo/corpo-humano.csv)
foreach(arquivo $<TARGET_FILE:compila_banco> $<TARGET_FILE:monta> ${QUADRELO_EXEMPLO})
  list(APPEND copias COMMAND ${CMAKE_COMMAND} -E copy ${arquivo} ${QUADRELO_FOLDER}/ferramentas)
endforeach()
set(carimbo ${PROJECT_BINARY_DIR}/ferramentas.carimbo)
add_custom_command(OUTPUT ${carimbo}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${QUADRELO_FOLDER}/ferramentas
  ${copias}
  COMMAND ${CMAKE_COMMAND} -E touch ${carimbo}
  DEPENDS compila_banco monta ${QUADRELO_EXEMPLO} VERBATIM)
add_custom_target(ferramentas_da_pasta ALL DEPENDS ${carimbo})
add_dependencies(quadrelo ferramentas_da_pasta)
