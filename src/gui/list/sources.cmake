target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FileTableModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileTableView.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ItemIconCache.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListModeSelector.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PasteboardItemsSheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PastedItemsModel.cpp)
