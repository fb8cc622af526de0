#pragma once

extern "C" {
[[gnu::weak]] void __lsan_disable();
[[gnu::weak]] void __lsan_enable();
}

/// Use it around an input whose failure ends the process: the toolkit library then does not free
/// the events being delivered, and the leak checker must not count them.
class Unwinding {
public:
    Unwinding() {
        if (__lsan_disable)
            __lsan_disable();
    }
    ~Unwinding() {
        if (__lsan_enable)
            __lsan_enable();
    }
    Unwinding(const Unwinding&) = delete;
    Unwinding& operator=(const Unwinding&) = delete;
};
