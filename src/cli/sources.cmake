target_sources(tavrin_cli_lib PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Cli.cpp)
