target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ExportSheetController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FromFileTab.cpp)
