# What the program holds on Windows besides its code: icons, version, manifest.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)

set(ikonok ${CMAKE_CURRENT_BINARY_DIR}/ikonok)
file(MAKE_DIRECTORY ${ikonok})
foreach(ikon korvend application-x-korvend)
  set(kepek "")
  foreach(meret 16 20 24 32 40 48 64 256)
    set(kep ${ikonok}/${ikon}-${meret}.png)
    add_custom_command(
      OUTPUT ${kep}
      COMMAND ${RSVG_CONVERT} --width ${meret} --height ${meret} --output ${kep} ${PROJECT_SOURCE_DIR}/packaging/${ikon}.svg
      DEPENDS ${PROJECT_SOURCE_DIR}/packaging/${ikon}.svg
      VERBATIM)
    list(APPEND kepek ${kep})
  endforeach()
  # The largest one is kept packed within the icon.
  list(POP_BACK kepek nagy)
  add_custom_command(
    OUTPUT ${ikonok}/${ikon}.ico
    COMMAND ${ICOTOOL} --create --output ${ikonok}/${ikon}.ico ${kepek} --raw=${nagy}
    DEPENDS ${kepek} ${nagy}
    VERBATIM)
  list(APPEND ikonfajlok ${ikonok}/${ikon}.ico)
endforeach()

configure_file(${CMAKE_CURRENT_LIST_DIR}/korvend.rc.in ${ikonok}/korvend.rc @ONLY)
set_source_files_properties(${ikonok}/korvend.rc PROPERTIES
  OBJECT_DEPENDS "${ikonfajlok};${CMAKE_CURRENT_LIST_DIR}/korvend.manifest")
target_sources(korvend PRIVATE ${ikonok}/korvend.rc)
set_target_properties(korvend PROPERTIES WIN32_EXECUTABLE ON)
