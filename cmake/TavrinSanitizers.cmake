if(TAVRIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# `make coverage`: gcov counters in every object, read afterwards by gcovr.
option(TAVRIN_COVERAGE "Build everything with gcov coverage counters" OFF)
if(TAVRIN_COVERAGE)
  add_compile_options(--coverage -O0)
  add_link_options(--coverage)
endif()
