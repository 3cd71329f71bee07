#pragma once

#include <memory>

/// Deleter that calls a C library's release function: the handle stays one word.
/// using FcPatternPtr = std::unique_ptr<FcPattern, Release<FcPatternDestroy>>;
template<auto release>
struct Release {
    template<typename T>
    void operator()(T *handle) const
    {
        release(handle);
    }
};
