# Reliability tests (label "reliability"): the paths dialog's Save killed at random instants,
# every file operation of every writing command failed in turn, and hostile config.ini files.
# The test programs are the *_qtest.cpp files in tests/reliability/, made by the top-level
# CMakeLists like every window test; kill_mid_save_qtest starts itself as the writer it kills.
foreach(test kill_mid_save_qtest fault_sweep_qtest ordinary_user_qtest)
    if(TARGET ${test})
        set_property(TEST ${test} APPEND PROPERTY LABELS reliability)
    endif()
endforeach()
