#pragma once

#include <cstddef>
#include <string_view>

namespace exchange {

/// Finds where a request ends in what has arrived of it, before anything reads its meaning. Strict:
/// whatever leaves two opinions about the length of a request is refused.
class RequestFrame {
public:
    static constexpr size_t LargestHead = 16 * 1024;

    enum class Is { Incomplete, Whole, Refused };

    RequestFrame(std::string_view arrived, size_t largestBody);

    Is State() const { return state_; }
    int Status() const { return status_; } ///< of a refused one
    std::string_view Head() const { return arrived_.substr(0, head_); }
    std::string_view Body() const { return arrived_.substr(head_, body_); }
    size_t Size() const { return head_ + body_; }

private:
    void ReadHead();
    void ReadLine(std::string_view line);
    void ReadLength(std::string_view value);
    void Refuse(int status);

    std::string_view arrived_;
    size_t largestBody_;
    Is state_ = Is::Incomplete;
    int status_ = 0;
    size_t head_ = 0;
    size_t body_ = 0;
    bool hasLength_ = false;
};

} // namespace exchange
