tavrin_add_test(test_keyed_archive SOURCES ${CMAKE_CURRENT_LIST_DIR}/KeyedArchiveTest.cpp LIBS PkgConfig::PLIST)
