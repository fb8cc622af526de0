#pragma once

#include "runtime/RuntimeError.h"

/// Runs one step of a routine that goes on whatever fails in it. Gives whether the step went
/// through.
template <class Step> bool Attempt(Step step) {
    try {
        step();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}
