# zvonika_windows_program(NAME DESCRIPTION): icon, version and manifest of a program for Windows; nothing elsewhere.
if(NOT WIN32)
  function(zvonika_windows_program)
  endfunction()
  return()
endif()

enable_language(RC)
find_program(ZVONIKA_SVG_TO_PNG rsvg-convert REQUIRED)
find_program(ZVONIKA_PNG_TO_ICO icotool REQUIRED)

set(windows_folder "${CMAKE_SOURCE_DIR}/packaging/windows")
set(windows_work "${CMAKE_BINARY_DIR}/windows")
set(ZVONIKA_ICON "${windows_work}/zvonika.ico")
set(ZVONIKA_MANIFEST "${windows_work}/zvonika.manifest")
set(ZVONIKA_WINDOWS_VERSION "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH}.0")
string(REPLACE "." "," ZVONIKA_WINDOWS_VERSION_LIST "${ZVONIKA_WINDOWS_VERSION}")
configure_file("${windows_folder}/zvonika.manifest" "${ZVONIKA_MANIFEST}" @ONLY)

# The sizes that Windows shows it in, from the title bar to a desktop of large symbols.
set(pngs)
foreach(size IN ITEMS 16 20 24 32 40 48 64 128 256)
  set(png "${windows_work}/zvonika-${size}.png")
  add_custom_command(OUTPUT "${png}"
    COMMAND ${ZVONIKA_SVG_TO_PNG} -w ${size} -h ${size} -o "${png}" "${windows_folder}/zvonika.svg"
    DEPENDS "${windows_folder}/zvonika.svg" VERBATIM)
  list(APPEND pngs "${png}")
endforeach()
set(pictures ${pngs})
list(TRANSFORM pictures PREPEND --raw= REGEX "-256\\.png$") # as it is; the rest become bitmaps, which all parts of the system read
add_custom_command(OUTPUT "${ZVONIKA_ICON}"
  COMMAND ${ZVONIKA_PNG_TO_ICO} --create --output "${ZVONIKA_ICON}" ${pictures}
  DEPENDS ${pngs} VERBATIM)
add_custom_target(windows_icon DEPENDS "${ZVONIKA_ICON}")

function(zvonika_windows_program ZVONIKA_PROGRAM ZVONIKA_DESCRIPTION)
  set(rc "${windows_work}/${ZVONIKA_PROGRAM}.rc")
  configure_file("${windows_folder}/zvonika.rc.in" "${rc}" @ONLY)
  set_source_files_properties("${rc}" PROPERTIES OBJECT_DEPENDS "${ZVONIKA_ICON};${ZVONIKA_MANIFEST}")
  target_sources(${ZVONIKA_PROGRAM} PRIVATE "${rc}")
  add_dependencies(${ZVONIKA_PROGRAM} windows_icon)
endfunction()
