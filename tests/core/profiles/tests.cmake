tavrin_add_test(test_settings SOURCES ${CMAKE_CURRENT_LIST_DIR}/SettingsTest.cpp LIBS Qt6::Test)
target_compile_definitions(test_settings PRIVATE
  TAVRIN_SETTINGS_RECORD="${CMAKE_CURRENT_LIST_DIR}/settings-record.tsv")
tavrin_add_test(test_preferences SOURCES ${CMAKE_CURRENT_LIST_DIR}/PreferencesTest.cpp)
tavrin_add_test(test_profile_file SOURCES ${CMAKE_CURRENT_LIST_DIR}/ProfileFileTest.cpp)
