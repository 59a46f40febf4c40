# Benchmarks (bench/): the start-up of the main window against a bare Qt window with the same
# widgets, the handlers one call at a time, and the wake-ups of an idle window. bench/run
# builds them in Release and runs them; the tests below only run each once, briefly, so that
# they keep building and working. No test times anything.

# Peak memory comes from wait4 and wake-ups from /proc: Linux only.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()

add_executable(bench_measure bench/measure.cpp)
set_target_properties(bench_measure PROPERTIES AUTOMOC OFF AUTORCC OFF)

add_library(bench_window_run STATIC bench/window_run.cpp bench/window_run.h
    bench/idle_wakeups.cpp bench/idle_wakeups.h)
target_link_libraries(bench_window_run PUBLIC Qt6::Widgets)

add_executable(bench_startup_umbrakit bench/startup_umbrakit.cpp)
target_link_libraries(bench_startup_umbrakit PRIVATE umbrakit_gui bench_window_run)

add_executable(bench_startup_bare bench/startup_bare.cpp bench/bare_window.cpp
    bench/bare_window.h)
target_link_libraries(bench_startup_bare PRIVATE bench_window_run)

add_executable(bench_handlers bench/handlers.cpp bench/handler_timer.cpp
    bench/main_window_cases.cpp bench/paths_dialog_cases.cpp bench/bare_window_cases.cpp
    bench/system_cases.cpp bench/bare_window.cpp)
# The handlers' boxes are answered as the tests answer them.
target_include_directories(bench_handlers PRIVATE tests)
target_link_libraries(bench_handlers PRIVATE umbrakit_gui)

add_custom_target(bench DEPENDS
    bench_measure bench_startup_umbrakit bench_startup_bare bench_handlers)

if(BUILD_TESTING)
    add_test(NAME bench_startup COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/bench/startup.sh
        --runs 1 --bin $<TARGET_FILE_DIR:bench_measure>)
    add_test(NAME bench_idle_umbrakit COMMAND bench_startup_umbrakit --idle 0.2)
    add_test(NAME bench_idle_bare COMMAND bench_startup_bare --idle 0.2)
    add_test(NAME bench_handlers COMMAND bench_handlers --quick)
    set_tests_properties(bench_startup bench_idle_umbrakit bench_idle_bare bench_handlers
        PROPERTIES LABELS bench ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120)
endif()
