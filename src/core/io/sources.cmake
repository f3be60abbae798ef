target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ExportList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ImportFiles.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameFileReader.cpp)
