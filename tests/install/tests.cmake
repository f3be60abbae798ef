# The installed tree as a desktop sees it: `cmake --install` into a temporary DESTDIR, then the
# desktop entry, metainfo, MIME types and icons through the freedesktop validators.
add_test(NAME InstallTree.DesktopIntegration
  COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/check-install.sh ${PROJECT_BINARY_DIR} ${PROJECT_VERSION}
          ${CMAKE_COMMAND})
set_tests_properties(InstallTree.DesktopIntegration PROPERTIES
  SKIP_RETURN_CODE 77
  TIMEOUT 300
  LABELS install)
