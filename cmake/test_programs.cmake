# Programs that tests start in place of the system's own, each handed to its test by path.

# Waits a moment like a script, then leaves a marker beside the script it was given.
if(TARGET system_launcher_qtest)
    target_compile_definitions(system_launcher_qtest PRIVATE
        FAKE_BATCH_PROCESSOR="${CMAKE_CURRENT_SOURCE_DIR}/tests/programs/fake_batch_processor.sh")
endif()

# The program itself, started with options as a user types them.
if(TARGET command_line_qtest)
    target_compile_definitions(command_line_qtest PRIVATE UMBRAKIT_PROGRAM="$<TARGET_FILE:umbrakit>")
    add_dependencies(command_line_qtest umbrakit)
endif()
