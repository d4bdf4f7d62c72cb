include(GNUInstallDirs)

install(TARGETS quillon quillon-app)
install(TARGETS quillon-reader DESTINATION libexec/quillon) # where the others look for it
install(FILES packaging/quillon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/example.quillon.Quillon.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/quillon.service DESTINATION lib/systemd/user)
install(DIRECTORY packaging/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES packaging/quillon-app.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The command writes its own manual pages and completions.
install(CODE "
  set(quillon \"$<TARGET_FILE:quillon>\")
  set(to \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}\")
  include(\"${CMAKE_CURRENT_SOURCE_DIR}/cmake/OwnWords.cmake\")")
