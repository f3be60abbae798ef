target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/DesktopUndoSheetPrompter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HelpPage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogTableModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogWorker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoSheetController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoSheetPrompter.h)

# The help pages open in a browser, which gets a copy of the page (HelpPage.h).
qt_add_resources(tavrin_gui tavrin_help
  PREFIX "/help"
  BASE ${PROJECT_SOURCE_DIR}/resources/help
  FILES
    ${PROJECT_SOURCE_DIR}/resources/help/undo.html)
