# Window tests that meet the program as a screen reader does (label "screen_reader"): on an X
# display (Xvfb) with the accessibility bus on, where Qt reports focus moves and name changes
# to assistive technology. tools/install-deps installs Xvfb, xauth, the session bus and the
# accessibility bus (dbus-daemon, at-spi2-core), Orca and xdotool; a missing one fails the test.
if(CMAKE_HOST_WIN32)
    return() # the session script is for X11 and D-Bus
endif()
foreach(test ${screen_reader_tests})
    add_test(NAME ${test}
             COMMAND sh ${CMAKE_CURRENT_SOURCE_DIR}/tests/gui/screen_reader_session.sh
                     $<TARGET_FILE:${test}>)
    set_tests_properties(${test} PROPERTIES LABELS screen_reader TIMEOUT 120)
endforeach()

# The program heard through the real screen reader: Orca speaks while the test drives the
# program by keys (tests/gui/orca/orca_speech.py). It skips only where it could not keep its
# Orca apart from the user's own.
add_test(NAME orca_speech
         COMMAND sh ${CMAKE_CURRENT_SOURCE_DIR}/tests/gui/orca/orca_session.sh
                 $<TARGET_FILE:umbrakit>)
set_tests_properties(orca_speech PROPERTIES LABELS screen_reader TIMEOUT 120
                     SKIP_RETURN_CODE 77)
