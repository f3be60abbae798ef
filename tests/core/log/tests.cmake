tavrin_add_test(test_rename_log SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogCrashTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameLogReaderTest.cpp)
