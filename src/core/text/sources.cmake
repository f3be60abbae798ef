target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/DateHelpers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LocalizedStrings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/NameParts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StringUtilities.cpp)
