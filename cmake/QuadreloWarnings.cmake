# quadrelo_options: what every target of the project is compiled with.
add_library(quadrelo_options INTERFACE)
target_include_directories(quadrelo_options INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/generated)
target_compile_options(quadrelo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast $<$<BOOL:${QUADRELO_WERROR}>:-Werror>
  # Where the sources lay is nobody's business, and the same sources give the same bytes anywhere.
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
target_compile_definitions(quadrelo_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS)
if(QUADRELO_ASSERTS)
  target_compile_definitions(quadrelo_options INTERFACE QT_FORCE_ASSERTS)
endif()
if(QUADRELO_ASAN)
  target_compile_options(quadrelo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(quadrelo_options INTERFACE -fsanitize=address,undefined)
endif()

configure_file(${PROJECT_SOURCE_DIR}/cmake/version.h.in ${PROJECT_BINARY_DIR}/generated/quadrelo_version.h @ONLY)
