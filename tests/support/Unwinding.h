#pragma once

extern "C" {
[[gnu::weak]] void __lsan_disable();
[[gnu::weak]] void __lsan_enable();
}

/// Around an input whose failure runs through the toolkit library to the end of the process: the
/// events being delivered stay behind then, and the leak checker, where it is built in, is not to
/// count them.
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
