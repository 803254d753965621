# The catalogues of texts, translations/marlevo_<language>.ts, compiled into the windows' library at
# :/translations.
file(GLOB catalogues CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/*.ts)
qt_add_translation(compiled_catalogues ${catalogues})
qt_add_resources(marlevo_ui_windows catalogues PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR}
  FILES ${compiled_catalogues})

# Command that collects the texts of the sources into a catalogue. Append the catalogue's file.
set(MARLEVO_COLLECT_TEXTS $<TARGET_FILE:Qt6::lupdate> ${PROJECT_SOURCE_DIR}/src -silent
  -tr-function-alias QT_TRANSLATE_NOOP+=translatable -locations none -no-obsolete -ts)

add_custom_target(update_catalogues
  COMMAND ${MARLEVO_COLLECT_TEXTS} ${catalogues}
  COMMENT "Bringing the catalogues up to date with the sources" VERBATIM)
