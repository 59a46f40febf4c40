# Fuzz tests (label "fuzz"): the fuzz targets in fuzz/ need clang and libFuzzer, whatever
# compiler this build uses, so they get a small build of their own below the build folder,
# made of the core's sources alone. A first test configures and builds it; then every target
# runs for UMBRAKIT_FUZZ_SECONDS on a copy of its seed corpus in fuzz/corpus/<target>/.
find_program(UMBRAKIT_FUZZ_COMPILER NAMES clang++ clang++-14
    DOC "clang++ with libFuzzer, for the fuzz tests")
if(NOT UMBRAKIT_FUZZ_COMPILER)
    message(STATUS "clang++ not found: no fuzz tests (tools/install-deps installs it)")
    return()
endif()
set(UMBRAKIT_FUZZ_SECONDS 20 CACHE STRING "How long each fuzz test runs, in seconds")

set(fuzz_build ${CMAKE_BINARY_DIR}/fuzz)
set(fuzz_source ${CMAKE_SOURCE_DIR}/fuzz)
file(GLOB fuzz_core_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/core/*.cpp)
# The list goes through the test's command line as one argument.
string(REPLACE ";" "\\;" fuzz_core_sources "${fuzz_core_sources}")

add_test(NAME fuzz_configure_targets
    COMMAND ${CMAKE_COMMAND} -S ${fuzz_source} -B ${fuzz_build}/targets
        -DCMAKE_CXX_COMPILER=${UMBRAKIT_FUZZ_COMPILER}
        "-DUMBRAKIT_CORE_SOURCES=${fuzz_core_sources}")
add_test(NAME fuzz_compile_targets COMMAND ${CMAKE_COMMAND} --build ${fuzz_build}/targets -j2)
set_tests_properties(fuzz_configure_targets PROPERTIES
    FIXTURES_SETUP fuzz_configured LABELS fuzz)
set_tests_properties(fuzz_compile_targets PROPERTIES
    FIXTURES_REQUIRED fuzz_configured FIXTURES_SETUP fuzz_targets LABELS fuzz TIMEOUT 600)

# Target name and the longest input it is given. config.ini: room for more than 30 short
# records, the edge of the list; longer lines change nothing in how the file is read, and
# hostile_config replays 100 kB lines. The outputs target needs at most 1,280 bytes for the
# check box values; the rest only lengthens the texts.
foreach(target_and_length config:4096 outputs:2048)
    string(REPLACE ":" ";" target_and_length ${target_and_length})
    list(GET target_and_length 0 target)
    list(GET target_and_length 1 max_len)
    set(dict "")
    if(target STREQUAL "config")
        set(dict -DDICT=${fuzz_source}/config.dict)
    endif()
    add_test(NAME fuzz_${target}
        COMMAND ${CMAKE_COMMAND}
            -DFUZZER=${fuzz_build}/targets/${target}_fuzz
            -DSEEDS=${fuzz_source}/corpus/${target}
            -DWORK=${fuzz_build}/runs/${target}
            -DSECONDS=${UMBRAKIT_FUZZ_SECONDS}
            -DMAX_LEN=${max_len} ${dict}
            -P ${fuzz_source}/run_fuzz_target.cmake)
    math(EXPR timeout "${UMBRAKIT_FUZZ_SECONDS} + 120")
    set_tests_properties(fuzz_${target} PROPERTIES
        FIXTURES_REQUIRED fuzz_targets LABELS fuzz TIMEOUT ${timeout})
endforeach()

# The hostile config.ini files (cut short, too many records, values that are no number or no
# Boolean, every high byte, NUL bytes, stray CRs, 100 kB lines), each replayed once through the
# config target's checks, whole and whatever their size: the seeds of fuzz/corpus/config/ and
# the big files of fuzz/hostile/, which stay out of the fuzzing corpus because every mutation
# of them would cost as much as they are long.
add_test(NAME hostile_config
    COMMAND sh -c "exec \"$0\" \"$1\"/* \"$2\"/*" ${fuzz_build}/targets/config_fuzz
        ${fuzz_source}/corpus/config ${fuzz_source}/hostile)
set_tests_properties(hostile_config PROPERTIES
    FIXTURES_REQUIRED fuzz_targets LABELS "reliability;fuzz" TIMEOUT 120)
