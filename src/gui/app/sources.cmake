target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ClipboardPaths.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DocumentCommands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DocumentOpener.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MainWindow.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PreferencesSheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SingleInstance.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TavrinAppController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TableContextMenus.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowActions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowSheets.cpp)
