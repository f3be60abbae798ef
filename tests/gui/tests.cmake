# Three executables: linking is what takes the time here.
tavrin_add_test(test_gui_controllers GUI SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/DocumentCommandsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ListControllerTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameControllerTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SessionTest.cpp)
tavrin_add_test(test_gui_window GUI SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/MainWindowTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RenameWindowTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ProfileSheetTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/RulesDrawerTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/UndoSheetTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WindowPolishTest.cpp)
tavrin_add_test(test_gui_widgets GUI SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/ActionTabsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FileTableModelTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HelpPageTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/LivePreviewSheetTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MessageBoxPrompterTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/OutsideItemsTest.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PreferencesSheetTest.cpp)
tavrin_add_test(test_gui_audio_tab GUI
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/AudioTabTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/AudioFiles.cpp
  LIBS PkgConfig::TAGLIB)
tavrin_add_test(test_gui_date_tabs GUI SOURCES ${CMAKE_CURRENT_LIST_DIR}/DateTabsTest.cpp LIBS PkgConfig::ICU)
tavrin_add_test(test_gui_photo_tab GUI
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/PhotoTabTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/PhotoFiles.cpp
  LIBS PkgConfig::EXIV2)
tavrin_add_test(test_gui_export GUI SOURCES ${CMAKE_CURRENT_LIST_DIR}/ExportSheetTest.cpp)
