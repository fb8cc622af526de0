#pragma once

#include "runtime/RuntimeError.h"

/// Runs a step that may fail without ending the routine. Returns whether it succeeded.
template <class Step> bool Attempt(Step step) {
    try {
        step();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}
