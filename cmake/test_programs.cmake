# Small programs that tests start in place of the system's own, each handed to its test by path.

# Waits a moment like a script, then leaves a marker beside the script it was given.
add_executable(fake_batch_processor tests/programs/fake_batch_processor.cpp)
set_target_properties(fake_batch_processor PROPERTIES AUTOMOC OFF AUTORCC OFF)
if(TARGET system_launcher_qtest)
    add_dependencies(system_launcher_qtest fake_batch_processor)
    target_compile_definitions(system_launcher_qtest PRIVATE
        FAKE_BATCH_PROCESSOR="$<TARGET_FILE:fake_batch_processor>")
endif()
