tavrin_add_test(test_general_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/GeneralActionTest.cpp)
tavrin_add_test(test_replaceremove_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/ReplaceRemoveActionTest.cpp)
tavrin_add_test(test_insertdelete_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/InsertDeleteActionTest.cpp)
tavrin_add_test(test_alphanumeric_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/AlphaNumericActionTest.cpp)
tavrin_add_test(test_audiotags_action
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/AudioTagsActionTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/AudioFiles.cpp
  LIBS PkgConfig::TAGLIB)
tavrin_add_test(test_datetime_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/DateTimeActionTest.cpp LIBS PkgConfig::ICU)
tavrin_add_test(test_prefixsuffix_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/PrefixSuffixActionTest.cpp LIBS PkgConfig::ICU)
tavrin_add_test(test_pathcomponents_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/PathComponentsActionTest.cpp)
tavrin_add_test(test_photo_action
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/PhotoActionTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/PhotoFiles.cpp
  LIBS PkgConfig::EXIV2 Qt6::Gui)
