tavrin_add_test(test_pipeline SOURCES ${CMAKE_CURRENT_LIST_DIR}/PipelineTest.cpp)
