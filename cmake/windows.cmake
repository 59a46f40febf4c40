# Checks of what runs on Windows, on every test run:
# - the core and its doctest tests built with mingw-w64 and run under Wine;
# - go.bat, as the core composes it, run by Wine's cmd against a stand-in BF1942.exe;
# - "&Go!" in the program, whose launcher hands go.bat to Wine.
# Wine or the cross compiler missing fails these tests: tools/install-deps installs both.
# All of them carry the label "windows"; one Wine prefix, made first, serves the whole run.
if(CMAKE_HOST_WIN32)
    # On Windows itself the program starts the real cmd; these stand-ins have nothing to do.
    set_tests_properties(wine_start_qtest PROPERTIES DISABLED TRUE)
    return()
endif()

set(windows_dir ${CMAKE_CURRENT_BINARY_DIR}/windows)
set(windows_prefix ${windows_dir}/wineprefix)
set(windows_stand_in ${windows_dir}/engine/BF1942.exe)
set(windows_scripts ${CMAKE_CURRENT_SOURCE_DIR}/tests/windows)
set(windows_fixtures "wine_prefix;windows_build")

find_path(UMBRAKIT_DOCTEST_DIR doctest/doctest.h REQUIRED)

# Native: prints go.bat for a configuration, composed by the core itself.
add_executable(go_bat_text tests/windows/go_bat_text.cpp)
target_link_libraries(go_bat_text PRIVATE umbrakit_core)

add_test(NAME windows_prefix COMMAND ${windows_scripts}/wine_prefix.sh create ${windows_prefix})
add_test(NAME windows_prefix_removal
         COMMAND ${windows_scripts}/wine_prefix.sh remove ${windows_prefix})
set_tests_properties(windows_prefix PROPERTIES FIXTURES_SETUP wine_prefix)
set_tests_properties(windows_prefix_removal PROPERTIES FIXTURES_CLEANUP wine_prefix)

add_test(NAME windows_cross_build
         COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${CMAKE_CURRENT_SOURCE_DIR}
                 -DBINARY_DIR=${windows_dir} "-DGENERATOR=${CMAKE_GENERATOR}"
                 -DBUILD_TYPE=${CMAKE_BUILD_TYPE} -DDOCTEST_DIR=${UMBRAKIT_DOCTEST_DIR}
                 -P ${windows_scripts}/cross_build.cmake)
set_tests_properties(windows_cross_build PROPERTIES FIXTURES_SETUP windows_build TIMEOUT 300)

add_test(NAME windows_tests_under_wine COMMAND wine ${windows_dir}/core/umbrakit_core_tests.exe)
add_test(NAME windows_go_bat_under_cmd
         COMMAND ${windows_scripts}/run_go_bat.sh $<TARGET_FILE:go_bat_text> ${windows_stand_in}
                 ${windows_dir}/go_bat)
set_tests_properties(windows_tests_under_wine windows_go_bat_under_cmd PROPERTIES
                     FIXTURES_REQUIRED "${windows_fixtures}" TIMEOUT 120)

set_tests_properties(windows_prefix windows_prefix_removal windows_cross_build
                     windows_tests_under_wine windows_go_bat_under_cmd
                     PROPERTIES LABELS windows
                     ENVIRONMENT "WINEPREFIX=${windows_prefix};WINEDEBUG=-all")

# The GUI test keeps its offscreen platform and gets the prefix and the stand-in besides.
set(windows_gui_env WINEPREFIX=set:${windows_prefix} WINEDEBUG=set:-all
                    UMBRAKIT_STAND_IN=set:${windows_stand_in})
set_tests_properties(wine_start_qtest PROPERTIES
                     LABELS windows FIXTURES_REQUIRED "${windows_fixtures}" TIMEOUT 120
                     ENVIRONMENT_MODIFICATION "${windows_gui_env}")
