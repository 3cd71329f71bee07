# Qaz::Platform on the desktop's own shared libraries (QAZ_PLATFORM=system). Only the headers of platform/ are used.
set(qaz_platform_libraries qazcore qazui qazuiextra qazintegration qazfiledialog slidingstackedwidget)

set(search PATH_SUFFIXES lib lib64 "lib/${CMAKE_LIBRARY_ARCHITECTURE}")
if(QAZ_PLATFORM_ROOT)
    list(PREPEND search PATHS ${QAZ_PLATFORM_ROOT} NO_DEFAULT_PATH)
endif()
set(found "")
set(missing "")
foreach(library ${qaz_platform_libraries})
    find_library(QAZ_LIBRARY_${library} ${library} ${search} NO_CACHE)
    if(QAZ_LIBRARY_${library})
        list(APPEND found ${QAZ_LIBRARY_${library}})
    else()
        list(APPEND missing lib${library})
    endif()
endforeach()
if(missing)
    list(JOIN missing ", " missing)
    message(FATAL_ERROR "The desktop's libraries are not all found under QAZ_PLATFORM_ROOT ('${QAZ_PLATFORM_ROOT}').\n"
        "Missing: ${missing}.\n"
        "-DQAZ_PLATFORM=standalone needs none of them.")
endif()

add_library(qaz-platform INTERFACE)
add_library(Qaz::Platform ALIAS qaz-platform)
target_link_libraries(qaz-platform INTERFACE
    Qaz::SingleApplication Qaz::Freedesktop Qaz::Base ${found} Qt5::Widgets Qt5::X11Extras PkgConfig::X11)
