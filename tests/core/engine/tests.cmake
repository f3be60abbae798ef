tavrin_add_test(test_pipeline SOURCES ${CMAKE_CURRENT_LIST_DIR}/PipelineTest.cpp)
tavrin_add_test(test_validation SOURCES ${CMAKE_CURRENT_LIST_DIR}/ValidationTest.cpp)
tavrin_add_test(test_option_values SOURCES ${CMAKE_CURRENT_LIST_DIR}/OptionValuesTest.cpp)
tavrin_add_test(test_rule_chain SOURCES ${CMAKE_CURRENT_LIST_DIR}/RuleChainTest.cpp)
