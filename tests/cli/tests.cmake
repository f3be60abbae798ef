tavrin_add_test(test_cli_list SOURCES ${CMAKE_CURRENT_LIST_DIR}/ListCommandTest.cpp LIBS tavrin_cli_lib)
target_compile_definitions(test_cli_list PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_list tavrin-cli)

tavrin_add_test(test_cli_rename SOURCES ${CMAKE_CURRENT_LIST_DIR}/RenameCommandTest.cpp)
target_compile_definitions(test_cli_rename PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_rename tavrin-cli)

tavrin_add_test(test_cli_undo SOURCES ${CMAKE_CURRENT_LIST_DIR}/UndoCommandTest.cpp)
target_compile_definitions(test_cli_undo PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_undo tavrin-cli)

tavrin_add_test(test_cli_audio
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/AudioCommandTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/AudioFiles.cpp
  LIBS PkgConfig::TAGLIB)
target_compile_definitions(test_cli_audio PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_audio tavrin-cli)

tavrin_add_test(test_cli_dates SOURCES ${CMAKE_CURRENT_LIST_DIR}/DateCommandTest.cpp)
target_compile_definitions(test_cli_dates PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_dates tavrin-cli)

tavrin_add_test(test_cli_command_line SOURCES ${CMAKE_CURRENT_LIST_DIR}/CommandLineTest.cpp LIBS tavrin_cli_lib)
target_compile_definitions(test_cli_command_line PRIVATE
  TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>"
  TAVRIN_MAN_DIR="${PROJECT_BINARY_DIR}/man"
  TAVRIN_COMPLETION_DIR="${PROJECT_SOURCE_DIR}/resources/completion")
add_dependencies(test_cli_command_line tavrin-cli tavrin-manuals)
tavrin_add_test(test_cli_photo
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/PhotoCommandTest.cpp ${PROJECT_SOURCE_DIR}/tests/core/metadata/PhotoFiles.cpp
  LIBS PkgConfig::EXIV2 Qt6::Gui)
target_compile_definitions(test_cli_photo PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_photo tavrin-cli)

tavrin_add_test(test_cli_export_import SOURCES ${CMAKE_CURRENT_LIST_DIR}/ExportImportCommandTest.cpp)
target_compile_definitions(test_cli_export_import PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_export_import tavrin-cli)

tavrin_add_test(test_cli_rules SOURCES ${CMAKE_CURRENT_LIST_DIR}/RuleCommandTest.cpp)
target_compile_definitions(test_cli_rules PRIVATE TAVRIN_CLI_PATH="$<TARGET_FILE:tavrin-cli>")
add_dependencies(test_cli_rules tavrin-cli)
