target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/JournalFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogFileCheck.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogFileLock.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogFileName.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogListing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogRecovery.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogEntry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogFormat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogReader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoRenaming.cpp)
