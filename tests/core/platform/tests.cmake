tavrin_add_test(test_file_operations SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/FileOperationsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FallbackMoveTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CaseOnlyRenameTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NewNameValidityTest.cpp)
