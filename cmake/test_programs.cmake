# Programs that tests start in place of the system's own, each handed to its test by path.

# Waits a moment like a script, then leaves a marker beside the script it was given.
if(TARGET system_launcher_qtest)
    target_compile_definitions(system_launcher_qtest PRIVATE
        FAKE_BATCH_PROCESSOR="${CMAKE_CURRENT_SOURCE_DIR}/tests/programs/fake_batch_processor.sh")
endif()

# The program itself, started with options as a user types them.
add_test(NAME command_line
         COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/tests/command_line_test.sh $<TARGET_FILE:umbrakit>)
