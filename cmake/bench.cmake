# Benchmarks (bench/): the start-up of the main window against a bare Qt window with the same
# widgets (timed by hyperfine, peak memory by GNU time), what the user does on the windows
# (Google Benchmark), and the wake-ups of an idle window. bench/run builds them in Release and
# runs them; the test below runs each once, briefly, so that they keep building and working.
# No test judges a time.

# The wake-ups of one thread (RUSAGE_THREAD) and GNU time: Linux only.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()
find_package(benchmark QUIET)
if(NOT benchmark_FOUND)
    message(STATUS "No Google Benchmark (libbenchmark-dev): the benchmarks are left out")
    return()
endif()

add_executable(bench_startup_umbrakit bench/startup.cpp)
target_link_libraries(bench_startup_umbrakit PRIVATE umbrakit_gui)
add_executable(bench_startup_bare bench/startup.cpp bench/bare_window.h)
target_compile_definitions(bench_startup_bare PRIVATE BARE_WINDOW)
target_link_libraries(bench_startup_bare PRIVATE Qt6::Widgets)

add_executable(bench_handlers bench/handlers.cpp bench/user_actions.h bench/user_actions.cpp
    bench/bare_window.h)
# The boxes and file dialogs are answered, and config.ini's records written, as in the tests.
target_include_directories(bench_handlers PRIVATE tests)
target_link_libraries(bench_handlers PRIVATE umbrakit_gui Qt6::Test benchmark::benchmark)

add_custom_target(bench DEPENDS bench_startup_umbrakit bench_startup_bare bench_handlers)

if(BUILD_TESTING)
    add_test(NAME bench COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/bench/run --quick
        --bin $<TARGET_FILE_DIR:bench_handlers>)
    set_tests_properties(bench PROPERTIES LABELS bench TIMEOUT 120)
endif()
