# The portable package: one folder holding the program, its menu entry, its icon as PNG, the
# README, the licence and, in docs/, the user's guide with its pictures, made by
# "cmake --build <dir> --target package". The program keeps config.ini and go.bat beside itself,
# so it and its files lie flat in that one folder, and the user unpacks it anywhere writable.
# Linux: Umbrakit-<version>-Linux.tar.gz on the system's Qt. Windows: a ZIP of the same folder,
# with what windeployqt copies beside the program.

# --version tells the version of project().
set_property(SOURCE src/command_line.cpp APPEND PROPERTY
    COMPILE_DEFINITIONS UMBRAKIT_VERSION="${PROJECT_VERSION}")

install(TARGETS umbrakit RUNTIME DESTINATION .)
install(FILES README.md LICENSE DESTINATION .)
if(UMBRAKIT_BUNDLED_FONT) # cmake/fonts.cmake
    install(FILES packaging/LiberationSans-LICENSE.txt DESTINATION .)
endif()
# The level builder's documents, in docs/ as in the source so that the README's and the guide's
# links hold; the developers' documents stay in the source.
install(FILES docs/user-guide.md DESTINATION docs)
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/docs/screen-readers.md)
    install(FILES docs/screen-readers.md DESTINATION docs)
endif()
install(DIRECTORY docs/images/ DESTINATION docs/images FILES_MATCHING PATTERN "*.png"
    PATTERN screenshots_failure.png EXCLUDE) # left by a failed tools/screenshots

if(UNIX AND NOT APPLE)
    # The packed entry starts "umbrakit" from the PATH; "umbrakit --install-desktop-entry"
    # writes one from the same template that starts the copy it is run from.
    set(UMBRAKIT_EXEC umbrakit)
    set(UMBRAKIT_TRY_EXEC umbrakit)
    configure_file(packaging/umbrakit.desktop.in packaging/umbrakit.desktop @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packaging/umbrakit.desktop
        src/gui/about/umbrakit-32.png src/gui/about/umbrakit-48.png
        src/gui/about/umbrakit-256.png DESTINATION .)
endif()

if(WIN32)
    # Qt's DLLs, the platform plugin and the compiler's run-time go beside the program, in the
    # folder that CPack packs. Only packing needs windeployqt; a build without it still works.
    find_program(UMBRAKIT_WINDEPLOYQT windeployqt HINTS "${Qt6_DIR}/../../../bin")
    if(UMBRAKIT_WINDEPLOYQT)
        install(CODE "execute_process(COMMAND \"${UMBRAKIT_WINDEPLOYQT}\"
            $<IF:$<CONFIG:Debug>,--debug,--release> --no-translations
            \"\${CMAKE_INSTALL_PREFIX}/umbrakit.exe\" COMMAND_ERROR_IS_FATAL ANY)")
    else()
        install(CODE "message(FATAL_ERROR \"windeployqt was not found beside Qt or on PATH\")")
    endif()
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR TGZ)
endif()

set(CPACK_PACKAGE_NAME Umbrakit)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "the Umbrakit developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Prepares lighting runs for Battlefield 1942 levels")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_CURRENT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_FILE_NAME "Umbrakit-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}")
set(CPACK_STRIP_FILES ON)
include(CPack)

# The package unpacked and used as a user would (label "package"): see the script's head.
# It builds the package target itself, and drives windows on a display of its own.
if(BUILD_TESTING AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_test(NAME package COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/package/package_test.sh
        ${CMAKE_COMMAND} ${CMAKE_BINARY_DIR} ${PROJECT_VERSION} ${CMAKE_CURRENT_SOURCE_DIR})
    set_tests_properties(package PROPERTIES LABELS package TIMEOUT 900 RUN_SERIAL ON)
endif()
