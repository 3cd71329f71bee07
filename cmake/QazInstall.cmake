# What is installed where, and the Debian package (cpack).
include(GNUInstallDirs)

install(TARGETS qaz-admin-theme qaz-svg2png qaz-theme qaz-wm-bridge qaz-wm-listen
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# The program looks for its data in ../share/qaz beside its own directory, wherever it was moved to.
set(data share/qaz)
install(DIRECTORY data/icons data/sounds data/themes DESTINATION ${data} PATTERN "*.py" EXCLUDE)
install(DIRECTORY ${QAZ_STAGED_DATA}/icons/qaz-tirsk/16x16 ${QAZ_STAGED_DATA}/icons/qaz-tirsk/64x64
    DESTINATION ${data}/icons/qaz-tirsk FILES_MATCHING PATTERN "*.png")
install(DIRECTORY data/wallpapers DESTINATION ${data} PATTERN sources EXCLUDE)
install(DIRECTORY ${QAZ_STAGED_DATA}/wallpapers DESTINATION ${data} FILES_MATCHING PATTERN "qaz-default.jpg")
install(DIRECTORY ${QAZ_STAGED_DATA}/translations DESTINATION ${data} OPTIONAL FILES_MATCHING PATTERN "*.qm")

install(DIRECTORY packaging/hicolor DESTINATION share/icons)
install(FILES packaging/qaz-admin-theme.desktop DESTINATION share/applications)
install(FILES packaging/org.qaz.admin_theme.metainfo.xml DESTINATION share/metainfo)
install(FILES docs/man/qaz-admin-theme.1 docs/man/qaz-svg2png.1 docs/man/qaz-theme.1 docs/man/qaz-wm-bridge.1
    docs/man/qaz-wm-listen.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/completions/qaz-theme DESTINATION share/bash-completion/completions)
# Disabled: who wants it copies it to ~/.config/autostart without its last line.
install(FILES packaging/qaz-wm-bridge.desktop DESTINATION etc/xdg/autostart)
install(FILES packaging/copyright README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The packages that the running programs use without linking them, from the one list.
file(STRINGS packaging/packages.txt lines)
set(section "")
set(run_packages "")
set(bridge_packages "")
set(try_packages "")
foreach(line ${lines})
    if(line MATCHES "^\\[(.*)\\]")
        set(section ${CMAKE_MATCH_1})
    elseif(section MATCHES "^(run|bridge|try)$" AND line MATCHES "^([a-z0-9][^ ]*)")
        list(APPEND ${section}_packages ${CMAKE_MATCH_1})
    endif()
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "the qaz-admin-theme authors")
set(CPACK_PACKAGE_CONTACT "the qaz-admin-theme authors <authors@qaz-admin-theme.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "theme editor of the Qaz desktop")
set(CPACK_PACKAGE_DESCRIPTION
    "Edits what a desktop session looks and sounds like, in one dialog: wallpapers,
cursor, icon and decoration themes, colours, fonts and their rendering,
screensaver and screen locker, window effects and compositing, and sounds.
The running window manager follows each change at once; on other desktops
qaz-wm-bridge carries the changes out.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/QazDebianDocs.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${PROJECT_VERSION_TWEAK})
set(CPACK_DEBIAN_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
list(JOIN run_packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN bridge_packages ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
list(JOIN try_packages ", " CPACK_DEBIAN_PACKAGE_SUGGESTS)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/conffiles)
include(CPack)
