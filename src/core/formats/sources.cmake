target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/KeyedArchive.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PlistNesting.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PropertyList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VersionStamp.cpp)
