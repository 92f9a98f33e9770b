#pragma once

#include "frame/run_time_error.h"

namespace tavrin {

template <typename Step>
void App::guarded(Step&& step) {
    if (ended_) {
        return;
    }
    ++depth_;
    try {
        step();
    } catch (const RunTimeError& error) {
        fatal(error);
    } catch (...) {
        --depth_;
        throw;
    }
    --depth_;
    buryUnloaded();
}

}  // namespace tavrin
