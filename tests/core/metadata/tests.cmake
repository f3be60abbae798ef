tavrin_add_test(test_audio_tag_reader
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/AudioTagReaderTest.cpp ${CMAKE_CURRENT_LIST_DIR}/AudioFiles.cpp
  LIBS PkgConfig::TAGLIB)
