target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Preferences.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileListing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Settings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsDefaults.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SettingsRecord.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Tabs.cpp)
