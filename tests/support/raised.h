#pragma once

#include "core/runTimeError.h"

// The number of the run-time error that the action raises; 0 for none.
template <typename Action>
int raisedBy(Action&& action) {
    try {
        action();
    } catch (const core::RunTimeError& error) {
        return error.number;
    }
    return 0;
}
