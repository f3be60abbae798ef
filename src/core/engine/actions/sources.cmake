target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/alphanumeric.cpp
  ${CMAKE_CURRENT_LIST_DIR}/audiotags.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dateformat.cpp
  ${CMAKE_CURRENT_LIST_DIR}/datetime.cpp
  ${CMAKE_CURRENT_LIST_DIR}/photo.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general.cpp
  ${CMAKE_CURRENT_LIST_DIR}/insertdelete.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pathcomponents.cpp
  ${CMAKE_CURRENT_LIST_DIR}/patternreplace.cpp
  ${CMAKE_CURRENT_LIST_DIR}/prefixsuffix.cpp
  ${CMAKE_CURRENT_LIST_DIR}/replaceremove.cpp
  ${CMAKE_CURRENT_LIST_DIR}/workingname.cpp)
