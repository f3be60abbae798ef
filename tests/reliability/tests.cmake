# The guarantees of the rename engine under random batches, injected faults and kills. Each
# suite takes a few seconds; TAVRIN_STRESS_ITERATIONS asks for longer runs.
tavrin_add_test(test_reliability SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/RandomBatchTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FaultInjectionTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/KillTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HostileInputTest.cpp)
