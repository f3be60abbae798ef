target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/RuleTableModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleTreeModel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RulesCommands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RulesDrawer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RulesSheet.cpp)
