# The libFuzzer targets of tests/fuzz/targets, built by clang++ in a build of
# their own (build/fuzz-targets) and run for a bounded time by CTest, label
# fuzz-targets. On by default when a clang++ that links libFuzzer is found,
# except under TAVRIN_SANITIZE: the targets carry their own sanitizers.

set(TAVRIN_FUZZ_CXX "" CACHE FILEPATH "clang++ with libFuzzer, for the fuzz targets")
if(NOT TAVRIN_FUZZ_CXX)
    find_program(found_clang NAMES clang++-14 clang++ NO_CACHE)
    if(found_clang)
        set(TAVRIN_FUZZ_CXX ${found_clang} CACHE FILEPATH "" FORCE)
    endif()
endif()

if(NOT DEFINED TAVRIN_LIBFUZZER)
    set(can_fuzz OFF)
    if(TAVRIN_FUZZ_CXX AND NOT TAVRIN_SANITIZE)
        # Links a target with libFuzzer and both sanitizers, or says why not.
        set(probe ${CMAKE_BINARY_DIR}/CMakeFiles/libfuzzer-probe)
        file(WRITE ${probe}.cpp [=[
#include <cstddef>
#include <cstdint>
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t*, std::size_t) { return 0; }
]=])
        execute_process(COMMAND ${TAVRIN_FUZZ_CXX} -fsanitize=fuzzer,address,undefined
                                ${probe}.cpp -o ${probe}
                        RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
        if(NOT failed)
            set(can_fuzz ON)
        endif()
    endif()
    message(STATUS "libFuzzer targets with ${TAVRIN_FUZZ_CXX}: ${can_fuzz}")
endif()
option(TAVRIN_LIBFUZZER "Build and run the libFuzzer targets (needs clang++ and libFuzzer)"
       ${can_fuzz})
set(TAVRIN_FUZZ_SECONDS 30 CACHE STRING "Seconds each fuzz target runs under ctest")

if(NOT TAVRIN_LIBFUZZER)
    return()
endif()

include(ExternalProject)
set(TAVRIN_FUZZ_TARGETS text_to_number num_to_str format_num dms_text checked_arithmetic)
set(fuzz_build ${CMAKE_BINARY_DIR}/fuzz-targets)
ExternalProject_Add(fuzz_targets
    SOURCE_DIR ${PROJECT_SOURCE_DIR}/tests/fuzz/targets
    BINARY_DIR ${fuzz_build}
    CMAKE_ARGS -DCMAKE_CXX_COMPILER=${TAVRIN_FUZZ_CXX} -DCMAKE_BUILD_TYPE=RelWithDebInfo
               -DTAVRIN_WERROR=${TAVRIN_WERROR} -DCMAKE_PREFIX_PATH=${CMAKE_PREFIX_PATH}
    BUILD_COMMAND ${CMAKE_COMMAND} --build ${fuzz_build} -j 2
    BUILD_ALWAYS ON
    INSTALL_COMMAND ""
    USES_TERMINAL_BUILD ON)

# Readable stacks: the symbolizer that stands beside the real clang++.
get_filename_component(clang_dir ${TAVRIN_FUZZ_CXX} REALPATH)
get_filename_component(clang_dir ${clang_dir} DIRECTORY)
find_program(symbolizer NAMES llvm-symbolizer HINTS ${clang_dir} NO_CACHE)

foreach(name IN LISTS TAVRIN_FUZZ_TARGETS)
    add_test(NAME fuzz-target.${name}
        COMMAND ${CMAKE_COMMAND} -DPROGRAM=${fuzz_build}/fuzz_${name}
                -DSEEDS=${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${name}
                -DWORK=${CMAKE_BINARY_DIR}/fuzz-corpus/${name} -DSECONDS=${TAVRIN_FUZZ_SECONDS}
                -P ${PROJECT_SOURCE_DIR}/cmake/RunFuzzTarget.cmake)
    math(EXPR limit "${TAVRIN_FUZZ_SECONDS} + 120")
    set_tests_properties(fuzz-target.${name} PROPERTIES LABELS fuzz-targets TIMEOUT ${limit})
    if(symbolizer)
        set_tests_properties(fuzz-target.${name} PROPERTIES
            ENVIRONMENT ASAN_SYMBOLIZER_PATH=${symbolizer})
    endif()
endforeach()
