# platform/ as shared libraries with the names of the desktop's own, to build against with QAZ_PLATFORM=system. They
# offer the desktop's interface and nothing else, so that an editor that links them keeps to it.
set(interface ${PROJECT_SOURCE_DIR}/cmake/platforminterface.map)

# The library <name> of those objects of <target> whose names match <pattern>. What they need of the rest comes from
# the libraries before it, or is linked in and hidden.
function(qaz_add_desktop_library name target pattern)
    add_library(${name} SHARED EXCLUDE_FROM_ALL "$<FILTER:$<TARGET_OBJECTS:${target}>,INCLUDE,/(${pattern})\\.cpp>")
    set_target_properties(${name} PROPERTIES
        LINKER_LANGUAGE CXX
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/desktop/lib
        LINK_DEPENDS ${interface})
    target_link_libraries(${name} PRIVATE ${ARGN} qaz-platform)
    target_link_options(${name} PRIVATE -Wl,--exclude-libs,ALL -Wl,--version-script=${interface})
endfunction()

qaz_add_desktop_library(slidingstackedwidget qaz-slidingstackedwidget "slidingstackedwidget|mocs_compilation")
qaz_add_desktop_library(qazfiledialog qaz-filedialog "qazfiledialog|mocs_compilation")
qaz_add_desktop_library(qazintegration qaz-platform "sendcommandtowm")
qaz_add_desktop_library(qazcore qaz-platform
    "getqazdir|qazinit|qazsettings|qazdesktopentry|findfileinpath|findinps|setxrdbparameterinfile")
qaz_add_desktop_library(qazui qaz-platform
    "currentcursortheme|finddpi|qazicontheme|findwallpaperbyname|wallpapersizeforscreen" qazcore)
qaz_add_desktop_library(qazuiextra qaz-platform "helpwindow|qazhelp|qazsoundtheme" qazcore slidingstackedwidget)
add_custom_target(desktop-libraries
    DEPENDS qazcore qazui qazuiextra qazintegration qazfiledialog slidingstackedwidget)
