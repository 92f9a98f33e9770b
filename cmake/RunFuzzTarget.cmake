# Runs one libFuzzer target for SECONDS: the seeds of the repository are read,
# and what the run adds goes to WORK, so that the checkout is never written.
# A failure leaves its input in WORK/crashes/; replay it with PROGRAM FILE.
# cmake -DPROGRAM=... -DSEEDS=... -DWORK=... -DSECONDS=30 -P RunFuzzTarget.cmake
file(MAKE_DIRECTORY ${WORK}/found ${WORK}/crashes)
execute_process(
    COMMAND ${PROGRAM} -max_total_time=${SECONDS} -timeout=10 -rss_limit_mb=2048
            -print_final_stats=1 -artifact_prefix=${WORK}/crashes/ ${WORK}/found ${SEEDS}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} found a failure (status ${result}); its input is in ${WORK}/crashes/")
endif()
