target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ActionTab.h
  ${CMAKE_CURRENT_LIST_DIR}/ActionTabs.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AudioTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateFieldInputs.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DateTimeTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PhotoTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/GeneralTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/InsertDeleteTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LivePreviewSheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OptionBinder.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PathComponentsTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PlaceChoices.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PrefixSuffixTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenamePanel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ReplaceRemoveTab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SequenceTab.cpp)
