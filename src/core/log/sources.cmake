target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/JournalFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogEntry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogFormat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogReader.cpp)
