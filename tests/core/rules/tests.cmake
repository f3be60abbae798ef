tavrin_add_test(test_rule_steps SOURCES ${CMAKE_CURRENT_LIST_DIR}/StepRecordTest.cpp)
tavrin_add_test(test_rule_files SOURCES ${CMAKE_CURRENT_LIST_DIR}/RuleFileTest.cpp)
tavrin_add_test(test_rule_tree SOURCES ${CMAKE_CURRENT_LIST_DIR}/RuleTreeTest.cpp)
