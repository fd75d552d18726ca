# What `cmake --install` puts where: the programs, and what a desktop needs to open view files with the editor.
include(GNUInstallDirs)

foreach(program quor-view-editor quor-view-tool quor-draw-metafile)
  if(TARGET ${program})
    install(TARGETS ${program})
  endif()
endforeach()

if(TARGET quor-view-editor)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
  install(DIRECTORY data/help DESTINATION ${CMAKE_INSTALL_DATADIR}/quor-view-editor)
  install(FILES data/sites.json DESTINATION ${CMAKE_INSTALL_DATADIR}/quor-view-editor)
  install(FILES data/quor-view-editor.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES data/quor-view.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES data/icons/application.svg DESTINATION ${icons}/apps RENAME quor-view-editor.svg)
  install(FILES data/icons/view-file.svg DESTINATION ${icons}/mimetypes RENAME application-x-quor-view.svg)
endif()
