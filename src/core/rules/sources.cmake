target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/RuleFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleLibraryImport.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleStep.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleTree.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleTreeLeaves.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StepRecord.cpp)
