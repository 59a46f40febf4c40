# Builds, with the mingw-w64 toolchain, the core and its doctest tests (the project with
# UMBRAKIT_CORE_ONLY) and the stand-in engine. Run by CTest with cmake -P:
#   -DSOURCE_DIR=<project> -DBINARY_DIR=<folder> -DGENERATOR=<generator>
#   -DBUILD_TYPE=<type> -DDOCTEST_DIR=<folder holding doctest/doctest.h>
set(toolchain ${SOURCE_DIR}/cmake/mingw-w64.cmake)

find_program(mingw_cxx x86_64-w64-mingw32-g++-posix)
if(NOT mingw_cxx)
    message(FATAL_ERROR
        "x86_64-w64-mingw32-g++-posix is missing; tools/install-deps installs it "
        "(package g++-mingw-w64-x86-64-posix)")
endif()

# The cross compiler must not see the host's /usr/include, so doctest, a single header, gets
# a folder of its own.
file(COPY ${DOCTEST_DIR}/doctest DESTINATION ${BINARY_DIR}/include)

function(cross_build name source)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${source} -B ${BINARY_DIR}/${name} -G ${GENERATOR}
                -DCMAKE_TOOLCHAIN_FILE=${toolchain} -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
                "-DCMAKE_CXX_FLAGS=-isystem ${BINARY_DIR}/include" ${ARGN}
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR}/${name} --parallel 2
                    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

cross_build(core ${SOURCE_DIR} -DUMBRAKIT_CORE_ONLY=ON -DBUILD_TESTING=ON)
cross_build(engine ${SOURCE_DIR}/tests/windows/engine)
