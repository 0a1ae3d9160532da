# Installing and packaging: `cmake --install build --prefix P` puts the
# programs, the desktop entry, the icons, the file types, the AppStream
# metadata and the translations in their standard places under P;
# `cpack -G DEB` (in the build folder) makes a Debian package of the same.
include(GNUInstallDirs)

install(TARGETS vorn-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET vorn)
  install(TARGETS vorn RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  set(desktop ${CMAKE_SOURCE_DIR}/resources/desktop)
  install(FILES ${desktop}/com.tandrelo.Vorn.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${desktop}/com.tandrelo.Vorn.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${desktop}/com.tandrelo.Vorn.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
          RENAME com.tandrelo.Vorn.xml)
  install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/com.tandrelo.Vorn.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  foreach(size IN LISTS VORN_ICON_SIZES)
    install(FILES ${VORN_ICON_DIR}/${size}/com.tandrelo.Vorn.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
  endforeach()
  # The translations are compiled into the program as well; these copies are
  # for tools that look for them on disk.
  install(FILES ${VORN_QM_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/vorn/translations)
  install(FILES ${CMAKE_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

set(CPACK_PACKAGE_NAME vorn)
set(CPACK_PACKAGE_VENDOR "Tandrelo")
set(CPACK_PACKAGE_CONTACT "Tandrelo <support@tandrelo.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Invoices, quotes and payment reminders")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_INSTALL_DIRECTORY /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://vorn.tandrelo.com/")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vorn writes invoices, quotes and payment reminders for freelancers and small
businesses, keeps them in one local database and renders them through
editable designs into previews, PDF files, print jobs and e-mails.")
# The libraries come from dpkg-shlibdeps; what is loaded at run time (the web
# engine's helper process, the SVG icon engine, the desktop's URL and mail
# helpers) is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6webenginecore6-bin, libqt6svg6, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, shared-mime-info, desktop-file-utils")
include(CPack)
