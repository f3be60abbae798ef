target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ProfileSheetController.cpp)
