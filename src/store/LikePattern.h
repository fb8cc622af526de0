#pragma once

#include <string>
#include <string_view>

/// A LIKE pattern prepared for many texts. It first looks for its longest run of plain letters,
/// without decoding the text. For the usual pattern, a word between two `%`, nothing else is
/// needed.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    bool Matches(std::string_view text) const;

private:
    void TakeWord();
    bool FindWord(std::string_view text) const;
    bool FindWordAt(std::string_view text, char anchor) const;
    bool MayFoldToWord(std::string_view text) const;
    bool MatchesFolded(std::u32string_view text) const;

    std::u32string folded_;    ///< the pattern case-folded, with marks for its wildcards
    std::string word_;         ///< its longest run of plain characters
    size_t anchor_ = 0;        ///< place of the character of the word that texts hold least
    bool wordAlone_ = false;   ///< nothing but the word between two `%`
    bool foldsToWord_ = false; ///< the word holds a letter that one beyond ASCII folds to
};
