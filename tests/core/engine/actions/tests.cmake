tavrin_add_test(test_general_action SOURCES ${CMAKE_CURRENT_LIST_DIR}/GeneralActionTest.cpp)
