target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FieldTexts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PhotoRenamingMaskEditor.cpp)
