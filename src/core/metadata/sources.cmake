target_sources(tavrin_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioTagReader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ImageMetadataReader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/IptcValues.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MetaDataCatalogue.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MetaDataField.cpp)

# The IPTC scene and subject code lists (code -> name), made from the IPTC NewsCodes tables by
# scripts/make-iptc-code-lists.py.
qt_add_resources(tavrin_core tavrin_iptc_codes
  PREFIX "/iptc"
  BASE ${PROJECT_SOURCE_DIR}/resources/iptc
  FILES ${PROJECT_SOURCE_DIR}/resources/iptc/scene.plist ${PROJECT_SOURCE_DIR}/resources/iptc/subjectcode.plist)
