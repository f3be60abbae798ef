tavrin_add_test(test_file_system_item SOURCES ${CMAKE_CURRENT_LIST_DIR}/FileSystemItemTest.cpp)
tavrin_add_test(test_file_list SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/FileListTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FilesComparisonTest.cpp)
tavrin_add_test(test_import_export SOURCES ${CMAKE_CURRENT_LIST_DIR}/ImportExportTest.cpp)
