# Warnings, strict floating point and the optional sanitizers, for every target
# of the project.

option(TAVRIN_WERROR "Treat warnings as errors" OFF)
option(TAVRIN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

function(tavrin_target_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wno-unused-parameter
        # The last digits of every answer reach the user: no contraction into
        # fused multiply-adds, no fast math, operations exactly as written.
        -ffp-contract=off -fno-fast-math)
    if(TAVRIN_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(TAVRIN_SANITIZE)
        # float-cast-overflow too: a double beyond an integer's range is a
        # fault here, and GCC's "undefined" leaves it out. Any report stops.
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined,float-cast-overflow
            -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined,float-cast-overflow)
    endif()
endfunction()
