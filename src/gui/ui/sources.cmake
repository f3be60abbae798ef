target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AttachedWindow.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ElidedLabel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ExtensionsEditorSheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBoxPrompter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Prompter.h
  ${CMAKE_CURRENT_LIST_DIR}/Sheet.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SidewaysScrollArea.cpp
  ${CMAKE_CURRENT_LIST_DIR}/TextFieldFormatter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ThumbnailPreview.cpp)
