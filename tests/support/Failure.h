#pragma once

#include "runtime/RuntimeError.h"

/// Number of the failure that the action ends in, 0 where it ends well.
template <class Action> int FailureOf(Action action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}
