# Where an installed Tessaro lies. The programs find their data and the helper by paths relative to their own folder
# (src/platform/Folders.cpp), so the whole may be installed anywhere.
include(GNUInstallDirs)

set(application org.tessaro.Tessaro)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

install(TARGETS tessaro tessaro-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS tessaro-svg RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/tessaro)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/tessaro)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tessaro RENAME copyright)
install(FILES ${packaging}/${application}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/${application}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${packaging}/${application}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME ${application}.xml)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${packaging}/${application}.svg DESTINATION ${icons}/scalable/apps)
foreach(side 16 24 32 48 64 128 256)
    install(FILES ${packaging}/icons/${side}.png DESTINATION ${icons}/${side}x${side}/apps RENAME ${application}.png)
endforeach()

foreach(page tessaro.1 tessaro-batch.1)
    install(FILES ${packaging}/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(CODE "execute_process(COMMAND gzip -9nf
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_MANDIR}/man1/${page}\" COMMAND_ERROR_IS_FATAL ANY)")
endforeach()
