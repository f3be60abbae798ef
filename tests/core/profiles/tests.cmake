tavrin_add_test(test_settings SOURCES ${CMAKE_CURRENT_LIST_DIR}/SettingsTest.cpp LIBS Qt6::Test)
tavrin_add_test(test_preferences SOURCES ${CMAKE_CURRENT_LIST_DIR}/PreferencesTest.cpp)
tavrin_add_test(test_profile_file SOURCES ${CMAKE_CURRENT_LIST_DIR}/ProfileFileTest.cpp)
