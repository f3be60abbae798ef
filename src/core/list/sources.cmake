target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FileSystemItem.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Progress.cpp)
