# Desktop integration and the Debian package.
#
# `cmake --install` puts the desktop entry, the AppStream metainfo, the MIME definitions of
# rule and profile files and the hicolor icons in their standard places under the prefix;
# `cpack -G DEB` turns the same tree into a package. The caches built from those files
# (desktop database, MIME database, icon cache) are left to dpkg's triggers and to the
# distribution's tools: nothing here runs them.

include(GNUInstallDirs)

set(TAVRIN_APP_ID "com.palisadesoft.Tavrin")
set(TAVRIN_DESKTOP_DIR "${PROJECT_SOURCE_DIR}/resources/desktop")
set(TAVRIN_ICON_DIR "${PROJECT_SOURCE_DIR}/resources/icons")

# The sizes the hicolor theme has folders for, and that desktops look up.
set(TAVRIN_APP_ICON_SIZES 16 22 24 32 48 64 128 256 512)
set(TAVRIN_MIME_ICON_SIZES 16 22 24 32 48 64 128 256)

install(FILES "${TAVRIN_DESKTOP_DIR}/${TAVRIN_APP_ID}.desktop"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
# Dolphin's service menu, where KDE 5 and 6 look for it.
install(FILES "${TAVRIN_DESKTOP_DIR}/${TAVRIN_APP_ID}.servicemenu.desktop"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/kio/servicemenus"
  RENAME "${TAVRIN_APP_ID}.desktop")
install(FILES "${TAVRIN_DESKTOP_DIR}/${TAVRIN_APP_ID}.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${TAVRIN_DESKTOP_DIR}/${TAVRIN_APP_ID}.mime.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
  RENAME "${TAVRIN_APP_ID}.xml")

# PNGs are rendered from the SVGs at build time, so they can never drift from them.
add_executable(tavrin-render-icon "${TAVRIN_DESKTOP_DIR}/render-icon.cpp")
target_link_libraries(tavrin-render-icon PRIVATE Qt6::Svg Qt6::Gui tavrin_warnings)

set(tavrin_rendered_icons)

# tavrin_install_icon(SVG CONTEXT NAME SIZES...): the SVG as hicolor/scalable/CONTEXT/NAME.svg
# and a PNG for each size as hicolor/NxN/CONTEXT/NAME.png.
function(tavrin_install_icon svg context name)
  set(icon_root "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
  install(FILES "${svg}" DESTINATION "${icon_root}/scalable/${context}" RENAME "${name}.svg")

  set(outputs)
  set(arguments)
  foreach(size ${ARGN})
    set(png "${PROJECT_BINARY_DIR}/icons/${size}x${size}/${context}/${name}.png")
    list(APPEND outputs "${png}")
    list(APPEND arguments "${size}=${png}")
    install(FILES "${png}" DESTINATION "${icon_root}/${size}x${size}/${context}")
  endforeach()

  set(directories ${outputs})
  list(TRANSFORM directories REPLACE "/[^/]*$" "")
  list(REMOVE_DUPLICATES directories)
  add_custom_command(OUTPUT ${outputs}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${directories}
    # A sanitized build instruments this tool too; a leak report at exit must not fail it.
    COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
            $<TARGET_FILE:tavrin-render-icon> "${svg}" ${arguments}
    DEPENDS tavrin-render-icon "${svg}"
    COMMENT "Rendering the ${name} icon"
    VERBATIM)
  set(tavrin_rendered_icons ${tavrin_rendered_icons} ${outputs} PARENT_SCOPE)
endfunction()

tavrin_install_icon("${TAVRIN_ICON_DIR}/tavrin.svg" apps "${TAVRIN_APP_ID}"
  ${TAVRIN_APP_ICON_SIZES})
# Icon names of MIME types are the type with "/" turned into "-", as the MIME XML names them.
tavrin_install_icon("${TAVRIN_ICON_DIR}/TavrinRule.svg" mimetypes application-x-tavrin-rule
  ${TAVRIN_MIME_ICON_SIZES})
tavrin_install_icon("${TAVRIN_ICON_DIR}/TavrinProfile.svg" mimetypes application-x-tavrin-profile
  ${TAVRIN_MIME_ICON_SIZES})

add_custom_target(tavrin_icons_png ALL DEPENDS ${tavrin_rendered_icons})

# ---- Debian package ---------------------------------------------------------------------

set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "tavrin")
set(CPACK_PACKAGE_VENDOR "Palisade Soft")
set(CPACK_PACKAGE_CONTACT "Palisade Soft <support@palisadesoft.example>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "batch renamer for files and folders")
set(CPACK_PACKAGE_DESCRIPTION [=[
Tavrin renames many files and folders at once. Gather them into one list, pick a
renaming action, preview the new names beside the old ones and apply them. Every
applied batch is logged first and can be undone later. A rename never replaces an
existing item.

The package holds the desktop application (tavrin) and the same engine for
terminals and scripts (tavrin-cli).]=])
# Release builds without symbols: the package is for users, not for debugging.
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# dpkg-shlibdeps (from dpkg-dev) reads the libraries the binaries link and writes Depends.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's plugins are loaded at run time, out of dpkg-shlibdeps' sight. The SVG icon engine that
# draws the window's icons comes with libqt6svg6, which tavrin links and so depends on; the
# X11 platform plugin comes with libqt6gui6.
# Wayland and the desktop's own look come from Qt plugins in packages of their own.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-qpa-plugins")

set(CPACK_SOURCE_GENERATOR "TXZ")
set(CPACK_SOURCE_IGNORE_FILES "/[.]git/" "/build[^/]*/")

include(CPack)

# The manual pages come from the help texts tavrin-cli prints, in English, so the two never
# disagree; the shell completions ask tavrin-cli for their words.
set(tavrin_manuals)
foreach(program tavrin-cli tavrin)
  set(page "${PROJECT_BINARY_DIR}/man/${program}.1")
  add_custom_command(OUTPUT "${page}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${PROJECT_BINARY_DIR}/man"
    COMMAND ${CMAKE_COMMAND} -E env LANGUAGE=en ASAN_OPTIONS=detect_leaks=0
            sh -c "\"$1\" manpage ${program} > \"$2\"" sh $<TARGET_FILE:tavrin-cli> "${page}"
    DEPENDS tavrin-cli
    VERBATIM)
  list(APPEND tavrin_manuals "${page}")
  install(FILES "${page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()
add_custom_target(tavrin-manuals ALL DEPENDS ${tavrin_manuals})

set(TAVRIN_COMPLETION_DIR "${PROJECT_SOURCE_DIR}/resources/completion")
install(FILES "${TAVRIN_COMPLETION_DIR}/tavrin-cli.bash"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME tavrin-cli)
install(FILES "${TAVRIN_COMPLETION_DIR}/_tavrin-cli" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
install(FILES "${TAVRIN_COMPLETION_DIR}/tavrin-cli.fish"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
