tavrin_add_test(test_string_utilities SOURCES ${CMAKE_CURRENT_LIST_DIR}/StringUtilitiesTest.cpp)
tavrin_add_test(test_date_helpers SOURCES ${CMAKE_CURRENT_LIST_DIR}/DateHelpersTest.cpp LIBS PkgConfig::ICU)

# Tables of the test's own, merged into the shipped ones, so that the fallback rules are
# checked against keys whose presence in each language is known.
tavrin_add_test(test_localized_strings SOURCES ${CMAKE_CURRENT_LIST_DIR}/LocalizedStringsTest.cpp)
qt_add_resources(test_localized_strings localized_strings_test_tables
  PREFIX "/strings"
  BASE ${CMAKE_CURRENT_LIST_DIR}/data
  FILES ${CMAKE_CURRENT_LIST_DIR}/data/en/localizedstringstest.json
        ${CMAKE_CURRENT_LIST_DIR}/data/fr/localizedstringstest.json)

# Reads src/ to match the tables against the keys the code uses.
tavrin_add_test(test_string_tables SOURCES ${CMAKE_CURRENT_LIST_DIR}/StringTablesTest.cpp)
target_compile_definitions(test_string_tables PRIVATE TAVRIN_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
