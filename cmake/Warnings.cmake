# Interface library that carries the warnings of this tree.
add_library(zvdisp_warnings INTERFACE)
target_compile_options(zvdisp_warnings INTERFACE -Wall -Wextra $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local> -Wnon-virtual-dtor
  -Wno-missing-field-initializers)
if(ZVDISP_WERROR)
  target_compile_options(zvdisp_warnings INTERFACE -Werror)
endif()
