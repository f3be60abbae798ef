target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/MainWindow.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TavrinAppController.cpp)
