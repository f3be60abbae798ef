target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/HelpPage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LogTableModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoSheetController.cpp)

# The help pages open in a browser, which gets a copy of the page (HelpPage.h). One folder
# per language, so a translated page is added by dropping it next to the others.
file(GLOB tavrin_help_pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/help/*/*.html)
qt_add_resources(tavrin_gui tavrin_help
  PREFIX "/help"
  BASE ${PROJECT_SOURCE_DIR}/resources/help
  FILES ${tavrin_help_pages} ${PROJECT_SOURCE_DIR}/resources/help/help.css)
