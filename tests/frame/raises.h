#pragma once

#include "frame/run_time_error.h"

namespace tavrin {

// The number of the run-time error that a step raises; 0 when it raises none.
template <typename Step>
int ErrorOf(Step&& step) {
    try {
        step();
    } catch (const RunTimeError& e) {
        return e.code();
    }
    return 0;
}

}  // namespace tavrin
