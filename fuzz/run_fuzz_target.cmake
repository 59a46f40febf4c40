# Runs one fuzz target for a bounded time, as a test: on a fresh copy of its seed corpus, so the
# seeds in the repository are never written to, and failing on any crash, leak, undefined
# behaviour or hang. Prints the figures libFuzzer reports at the end.
#
#   cmake -DFUZZER=<program> -DSEEDS=<seed folder> -DWORK=<scratch folder> -DSECONDS=<n>
#         -DMAX_LEN=<bytes> [-DDICT=<file>] -P run_fuzz_target.cmake
foreach(argument FUZZER SEEDS WORK SECONDS MAX_LEN)
    if(NOT DEFINED ${argument})
        message(FATAL_ERROR "${argument} is not given")
    endif()
endforeach()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/corpus ${WORK}/artifacts)
file(COPY ${SEEDS}/ DESTINATION ${WORK}/corpus)

set(options -max_total_time=${SECONDS} -print_final_stats=1 -timeout=10 -max_len=${MAX_LEN}
    -artifact_prefix=${WORK}/artifacts/)
if(DICT)
    list(APPEND options -dict=${DICT})
endif()
execute_process(COMMAND ${FUZZER} ${options} ${WORK}/corpus
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)

string(REGEX MATCH "stat::number_of_executed_units: *([0-9]+)" found "${output}")
set(executions "${CMAKE_MATCH_1}")
file(GLOB crashes ${WORK}/artifacts/*)
list(LENGTH crashes crash_count)
get_filename_component(name ${FUZZER} NAME)
message("${name}: ${executions} executions in ${SECONDS} s, ${crash_count} crashes")

if(NOT result EQUAL 0 OR crash_count GREATER 0 OR NOT executions)
    message(FATAL_ERROR "${name} failed (exit ${result}); inputs kept in ${WORK}/artifacts\n"
        "${output}")
endif()
