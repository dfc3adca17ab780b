# What an installation on a POSIX system holds, and how CPack makes a Debian package of it. The programs and the
# prediction library, which they look for beside themselves, share a folder of their own; bin/ has links to them.
if(WIN32 OR NOT VERITANE_WINDOW)
  return()
endif()
include(GNUInstallDirs)

set(linux_files ${CMAKE_SOURCE_DIR}/packaging/linux)
set(made_files ${CMAKE_BINARY_DIR}/package_files)
# CPack takes a library directly in lib/veritane for a public one and has the system told of it.
set(program_folder lib/veritane/bin)
set(document_folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/veritane)
set(linked_programs veritane-console veritane-setup simulator-panel veritane-calibrate veritane-predict)

install(TARGETS veritane ${linked_programs} RUNTIME DESTINATION ${program_folder})
install(TARGETS plsiqp32 LIBRARY DESTINATION ${program_folder})
install(FILES ${linux_files}/program_folder DESTINATION ${program_folder})
install(PROGRAMS ${linux_files}/veritane DESTINATION ${CMAKE_INSTALL_BINDIR})
foreach(program IN LISTS linked_programs)
  set(link ${made_files}/bin/${program})
  file(MAKE_DIRECTORY ${made_files}/bin)
  file(CREATE_LINK ../${program_folder}/${program} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES ${linux_files}/veritane.desktop ${linux_files}/veritane-simulator-panel.desktop
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
install(FILES ${linux_files}/com.kestrova.veritane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo)
install(FILES README.md LICENSE DESTINATION ${document_folder})
install(DIRECTORY docs DESTINATION ${document_folder} FILES_MATCHING PATTERN *.md PATTERN *.png)

# --- Made by the target package_files: icons in sizes, and what Debian wants compressed. --------------------------
set(icons ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
set(made)
install(FILES ${linux_files}/veritane.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  set(icon ${made_files}/icons/${size}/veritane.png)
  add_custom_command(OUTPUT ${icon}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${made_files}/icons/${size}
    COMMAND rsvg-convert --width ${size} --height ${size} --output ${icon} ${linux_files}/veritane.svg
    DEPENDS ${linux_files}/veritane.svg VERBATIM)
  install(FILES ${icon} DESTINATION ${icons}/${size}x${size}/apps)
  list(APPEND made ${icon})
endforeach()

# veritane_compressed(<source> <name>.gz DESTINATION <folder>)
function(veritane_compressed SOURCE NAME)
  cmake_parse_arguments(COMPRESSED "" "DESTINATION" "" ${ARGN})
  add_custom_command(OUTPUT ${made_files}/${NAME}
    COMMAND sh -c "gzip -9nc \"$1\" > \"$2\"" sh ${SOURCE} ${made_files}/${NAME}
    DEPENDS ${SOURCE} VERBATIM)
  install(FILES ${made_files}/${NAME} DESTINATION ${COMPRESSED_DESTINATION})
  set(made ${made} ${made_files}/${NAME} PARENT_SCOPE)
endfunction()
foreach(program veritane ${linked_programs})
  veritane_compressed(${linux_files}/man/${program}.1 ${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
veritane_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog.gz DESTINATION ${document_folder})
veritane_compressed(${CMAKE_SOURCE_DIR}/packaging/debian/changelog changelog.Debian.gz DESTINATION ${document_folder})
install(FILES packaging/debian/copyright DESTINATION ${document_folder})
add_custom_target(package_files DEPENDS ${made})

# --- The Debian package. -------------------------------------------------------------------------------------------
file(STRINGS packaging/debian/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^veritane \\(${PROJECT_VERSION}-([0-9]+)\\)")
  message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${PROJECT_VERSION}: ${newest}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veritane)
set(CPACK_PACKAGE_CONTACT "Veritane maintainers <maintainers@veritane.example>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is printed is set in this typeface.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS cups-client)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "verification of materials by their infrared spectra")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Veritane measures a sample at an FTIR spectrometer, compares it with the
product's Standard, shows both spectra with a match quality in percent and
PASS or FAIL, files the spectrum and writes the records.

It comes with a simulated spectrometer, a console for qualification scripts,
and tools that build PLS calibrations and apply them.")
include(CPack)
