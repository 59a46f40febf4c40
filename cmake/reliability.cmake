# Reliability tests (label "reliability"): the paths dialog's Save killed at random instants,
# every file operation of every writing command failed in turn, and hostile config.ini files.
# The test programs are the *_qtest.cpp files in tests/reliability/, made by the top-level
# CMakeLists like every window test; kill_mid_save_qtest starts itself as the writer it kills.
foreach(test kill_mid_save_qtest fault_sweep_qtest)
    if(TARGET ${test})
        set_property(TEST ${test} APPEND PROPERTY LABELS reliability)
    endif()
endforeach()

# The read-only folder notice as an ordinary user meets it: the check runs as the user nobody.
if(TARGET umbrakit_test_support)
    add_executable(ordinary_user_check tests/reliability/ordinary_user_check.cpp)
    target_link_libraries(ordinary_user_check PRIVATE umbrakit_test_support)
    add_test(NAME ordinary_user COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/reliability/ordinary_user_test.sh
                                        $<TARGET_FILE:ordinary_user_check>)
    set_tests_properties(ordinary_user PROPERTIES LABELS reliability SKIP_RETURN_CODE 77)
endif()
