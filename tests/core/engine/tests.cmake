tavrin_add_test(test_pipeline SOURCES ${CMAKE_CURRENT_LIST_DIR}/PipelineTest.cpp)
tavrin_add_test(test_validation SOURCES ${CMAKE_CURRENT_LIST_DIR}/ValidationTest.cpp)
