target_sources(tavrin_cli_lib PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Cli.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CommandSettings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CommonOptions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListJson.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LoadedList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogOptions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogsCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameOptions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TerminalProgress.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoCommand.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Usage.cpp)
