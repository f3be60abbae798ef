tavrin_add_test(test_audio_tag_reader
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/AudioTagReaderTest.cpp ${CMAKE_CURRENT_LIST_DIR}/AudioFiles.cpp
  LIBS PkgConfig::TAGLIB)
tavrin_add_test(test_photo_metadata
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/PhotoCatalogueTest.cpp ${CMAKE_CURRENT_LIST_DIR}/PhotoReaderTest.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PhotoFiles.cpp
  LIBS PkgConfig::EXIV2 Qt6::Gui)
