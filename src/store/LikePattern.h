#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// A LIKE pattern made ready to be held against many texts. The common pattern, a word of plain
/// letters between two `%`, is searched for with skips and without decoding the text.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    bool Matches(std::string_view text) const;

private:
    void PrepareWord();
    bool FindWord(std::string_view text) const;
    bool MatchesFolded(std::u32string_view text) const;

    std::u32string folded_; ///< the pattern case-folded, with marks for its wildcards
    std::string word_;      ///< the plain word between two `%`; empty where there is none
    std::array<std::uint8_t, 256> skip_{};
};
