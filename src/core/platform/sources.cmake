target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FileDates.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileOperations.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InputFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SystemCalls.cpp)
