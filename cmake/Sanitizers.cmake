if(ZVDISP_SANITIZE)
  add_compile_options(-fsanitize=${ZVDISP_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${ZVDISP_SANITIZE})
endif()
