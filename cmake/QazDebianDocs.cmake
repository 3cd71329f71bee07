# Run by cpack before it packs: Debian wants its changelog, and manual pages and changelogs compressed, and has no
# /usr/etc.
file(RENAME ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/etc ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/etc)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/../packaging/changelog
    DESTINATION ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/qaz-admin-theme)
file(RENAME ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/qaz-admin-theme/changelog
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/qaz-admin-theme/changelog.Debian)
file(GLOB pages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/man/man1/*.1)
execute_process(
    COMMAND gzip -9nf ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/qaz-admin-theme/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)
