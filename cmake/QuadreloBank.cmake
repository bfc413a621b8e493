# quadrelo_compile_bank(TARGET SOURCE.tsv OUTPUT.tes): compiles the project's own bank as part of the build.
# A line that breaks a rule stops the build; the compiler names the file, the line and the reason.
# A build for another system takes the compiler of a build for this one, from QUADRELO_HOST_TOOLS.
function(quadrelo_compile_bank target source output)
  set(compilador compila_banco)
  if(CMAKE_CROSSCOMPILING)
    find_program(QUADRELO_COMPILA_BANCO compila_banco PATHS ${QUADRELO_HOST_TOOLS} NO_DEFAULT_PATH REQUIRED)
    set(compilador ${QUADRELO_COMPILA_BANCO})
  endif()
  add_custom_command(OUTPUT ${output}
    COMMAND ${compilador} --regras-da-casa ${source} ${output}
    DEPENDS ${compilador} ${source}
    COMMENT "Compiling the question bank" VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${output})
endfunction()
