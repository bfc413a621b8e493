# quadrelo_compile_bank(TARGET SOURCE.tsv OUTPUT.tes): compiles a question bank as part of the build.
# A line that breaks a rule stops the build; the compiler names the file, the line and the reason.
function(quadrelo_compile_bank target source output)
  add_custom_command(OUTPUT ${output}
    COMMAND compila_banco ${source} ${output}
    DEPENDS compila_banco ${source}
    COMMENT "Compiling the question bank" VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${output})
endfunction()
