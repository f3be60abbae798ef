tavrin_add_test(test_rename_log SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogCrashTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogReaderTest.cpp)

tavrin_add_test(test_log_undo SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/LogListingTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogRecoveryTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoRenamingTest.cpp)

