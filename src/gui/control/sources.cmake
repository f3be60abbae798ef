target_sources(tavrin_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ActivityStatus.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BackgroundJob.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListMode.h
  ${CMAKE_CURRENT_LIST_DIR}/LivePreview.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RulesController.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SessionController.cpp)
