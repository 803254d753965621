# The files of "cmake --install", and the .deb made of them (scripts/package.sh).
include(GNUInstallDirs)

set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

# Manuals and change logs are installed compressed, without time stamps: equal bytes in each build.
function(marlevo_compressed file)
  set(compressed ${PROJECT_BINARY_DIR}/packaging/${file}.gz)
  add_custom_command(OUTPUT ${compressed} DEPENDS ${packaging}/${file}
    COMMAND gzip -9nc ${packaging}/${file} > ${compressed} VERBATIM)
  set_property(TARGET packaging APPEND PROPERTY SOURCES ${compressed})
endfunction()

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
add_custom_target(packaging ALL)
marlevo_compressed(marlevo.1)
marlevo_compressed(changelog)

install(TARGETS marlevo RUNTIME)
install(FILES ${packaging}/marlevo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/marlevo-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME marlevo.xml)
install(FILES ${packaging}/marlevo.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  RENAME org.marlevo.marlevo.metainfo.xml)
install(FILES ${PROJECT_SOURCE_DIR}/src/ui/controls/icons/marlevo.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${PROJECT_BINARY_DIR}/packaging/marlevo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packaging}/copyright ${PROJECT_BINARY_DIR}/packaging/changelog.gz
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/marlevo)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME marlevo)
set(CPACK_PACKAGE_CONTACT "The Marlevo developers <marlevo@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "draw strokes and shapes on layers")
set(CPACK_PACKAGE_DESCRIPTION "Marlevo is a drawing program with one window for each drawing: freehand
strokes, lines, rectangles and ellipses on layers, an eraser, an eyedropper
and a fill that makes shapes. Strokes and shapes stay what they are and can
be selected, moved and deleted, and every change can be undone.

Pictures go out as PNG, JPEG, TIFF, BMP or vector PDF, to a printer and to
the clipboard.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# In addition to the libraries: the toolkit's own texts, and the codec of TIFF files.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
