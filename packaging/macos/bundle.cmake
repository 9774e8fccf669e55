# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Makes the target `morrowleaf` the bundle Morrowleaf.app, with the files of resources/ in
# Contents/Resources and the reader programs in Contents/libexec. MORROWLEAF_ICON is the
# path of its icon, which may be generated.
set_target_properties(morrowleaf PROPERTIES
  OUTPUT_NAME Morrowleaf
  MACOSX_BUNDLE TRUE
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_LIST_DIR}/Info.plist.in)

get_filename_component(resources ${CMAKE_CURRENT_LIST_DIR}/../../resources ABSOLUTE)
foreach(folder Fonts Backgrounds)
  file(GLOB files CONFIGURE_DEPENDS ${resources}/${folder}/*)
  list(FILTER files EXCLUDE REGEX "\\.md$")
  target_sources(morrowleaf PRIVATE ${files})
  set_source_files_properties(${files} TARGET_DIRECTORY morrowleaf
    PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${folder})
endforeach()
target_sources(morrowleaf PRIVATE ${MORROWLEAF_ICON})
set_source_files_properties(${MORROWLEAF_ICON} TARGET_DIRECTORY morrowleaf
  PROPERTIES MACOSX_PACKAGE_LOCATION Resources)

# Where the program looks for them, in the folder of the build too.
set(readers ${CMAKE_CURRENT_BINARY_DIR}/bundled_readers.done)
add_custom_command(OUTPUT ${readers}
  COMMAND ${CMAKE_COMMAND} -E make_directory $<TARGET_BUNDLE_CONTENT_DIR:morrowleaf>/libexec/morrowleaf
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:quotereader> $<TARGET_FILE:photoreader>
    $<TARGET_BUNDLE_CONTENT_DIR:morrowleaf>/libexec/morrowleaf
  COMMAND ${CMAKE_COMMAND} -E touch ${readers}
  DEPENDS morrowleaf quotereader photoreader VERBATIM)
add_custom_target(bundled_readers ALL DEPENDS ${readers})
