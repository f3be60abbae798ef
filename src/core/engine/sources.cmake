target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ActionRegistry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FolderPathIndex.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OptionValues.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Pipeline.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProposalConflicts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RuleProposer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StepOptionValues.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Validation.cpp)
