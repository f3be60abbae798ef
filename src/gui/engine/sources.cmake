target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ActionTab.h
  ${CMAKE_CURRENT_LIST_DIR}/ActionTabs.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GeneralTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenamePanel.cpp)
