#pragma once

#include "runtime/RuntimeError.h"

/// The error number of the failure in `action`; 0 if there is none.
template <class Action> int FailureOf(Action action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}
