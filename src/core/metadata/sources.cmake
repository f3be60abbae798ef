target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioTagReader.cpp)
