target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FileList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileSystemItem.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FilesComparison.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FolderScan.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Progress.cpp)
