# Reliability tests (label "reliability"): the paths dialog's Save killed at random instants,
# every file operation of every writing command failed in turn, and hostile config.ini files.
# The test programs themselves are the *_qtest.cpp files in tests/reliability/, made by the
# top-level CMakeLists like every window test; this file adds their helper and their label.

# The writer that the kill test starts and kills, again and again.
add_executable(save_loop tests/reliability/save_loop.cpp)
target_link_libraries(save_loop PRIVATE umbrakit_test_support)

foreach(test kill_mid_save_qtest fault_sweep_qtest hostile_config_qtest)
    if(TARGET ${test})
        set_property(TEST ${test} APPEND PROPERTY LABELS reliability)
    endif()
endforeach()
if(TARGET kill_mid_save_qtest)
    add_dependencies(kill_mid_save_qtest save_loop)
    target_compile_definitions(kill_mid_save_qtest PRIVATE
        SAVE_LOOP="$<TARGET_FILE:save_loop>")
endif()
