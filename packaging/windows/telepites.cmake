# What is installed on Windows, in one folder: the program, the libraries it stands on, and what both need. The installer
# (korvend.nsi) is made of this.
set(licencek licencek)

install(TARGETS korvend keplet-json RUNTIME DESTINATION .)
if(TARGET korvend-adat)
  install(TARGETS korvend-adat RUNTIME DESTINATION .)
endif()
install(TARGETS korvend_hang korvend_kulcs LIBRARY DESTINATION .)
install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/doc DESTINATION .)

# Text is drawn by FreeType (qt.conf) from faces that the program brings, so that every window and the wheel look as they do
# on Linux. The faces and the texts of the toolkit's own buttons are those of this machine's packages.
install(FILES ${CMAKE_CURRENT_LIST_DIR}/qt.conf DESTINATION .)
install(FILES "${PROJECT_SOURCE_DIR}/fonts/Astro Symbols.ttf" DESTINATION fonts)
foreach(betu LiberationSans-Regular LiberationSans-Bold LiberationSans-Italic LiberationSans-BoldItalic
    LiberationSerif-Regular DejaVuSans DejaVuSans-Bold)
  find_file(betu_${betu} ${betu}.ttf PATHS /usr/share/fonts/truetype/liberation /usr/share/fonts/truetype/dejavu
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  install(FILES ${betu_${betu}} DESTINATION fonts)
endforeach()
install(FILES /usr/share/qt6/translations/qtbase_hu.qm DESTINATION translations)

# The toolkit, in libraries that can be exchanged as its licence asks.
foreach(konyvtar Core Gui Widgets PrintSupport)
  install(FILES $<TARGET_FILE:Qt6::${konyvtar}> DESTINATION .)
endforeach()
install(FILES $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> DESTINATION platforms)

# The compiler's own libraries.
foreach(konyvtar libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${konyvtar}.dll OUTPUT_VARIABLE fajl
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(NOT IS_ABSOLUTE ${fajl})
    message(FATAL_ERROR "The compiler has no ${konyvtar}.dll")
  endif()
  install(FILES ${fajl} DESTINATION .)
endforeach()

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${licencek} RENAME Korvend.txt)
install(FILES ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md DESTINATION ${licencek} RENAME THIRD-PARTY.txt)
install(FILES ${PROJECT_SOURCE_DIR}/src/tables/data/NOTICE.md DESTINATION ${licencek} RENAME telepulesek.txt)
install(FILES ${PROJECT_SOURCE_DIR}/fonts/LICENSE DESTINATION ${licencek} RENAME "Astro Symbols.txt")
install(FILES ${CMAKE_CURRENT_LIST_DIR}/forrasok.txt DESTINATION ${licencek})
foreach(licenc LGPL-3 GPL-3)
  install(FILES /usr/share/common-licenses/${licenc} DESTINATION ${licencek} RENAME ${licenc}.txt)
endforeach()
foreach(csomag qt6-base-dev qt6-translations-l10n fonts-liberation fonts-dejavu-core nlohmann-json3-dev
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev)
  install(FILES /usr/share/doc/${csomag}/copyright DESTINATION ${licencek} RENAME ${csomag}.txt)
endforeach()
