#include "exchange/Words.h"

#include "exchange/Text.h"

#include <algorithm>

namespace exchange::Words {
namespace {
constexpr size_t Longest = 40;
constexpr size_t MostOfARecipe = 1000;

/// Letters and digits; every byte of a letter beyond ASCII belongs to the word.
bool Belongs(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::string Singular(std::string word) {
    if (word.size() > 4 && word.ends_with("ies"))
        return word.replace(word.size() - 3, 3, "y");
    if (word.size() > 4 && word.ends_with("oes"))
        return word.erase(word.size() - 2);
    if (word.size() > 3 && word.ends_with('s') && !word.ends_with("ss") && !word.ends_with("us"))
        word.pop_back();
    return word;
}

/// The beginning of a long word, without half a letter at its end.
std::string Shortened(std::string word) {
    if (word.size() <= Longest)
        return word;
    auto end = Longest;
    while (end > 0 && (static_cast<unsigned char>(word[end]) & 0xc0) == 0x80)
        --end;
    return word.substr(0, end);
}

void Collect(std::string_view text, std::vector<std::string>& words) {
    const auto lower = Lower(text);
    for (auto begin = lower.begin(); begin != lower.end();) {
        begin = std::find_if(begin, lower.end(), Belongs);
        const auto end = std::find_if_not(begin, lower.end(), Belongs);
        if (end - begin > 1)
            words.push_back(Singular(Shortened({begin, end})));
        begin = end;
    }
}

void Unique(std::vector<std::string>& words) {
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
}
} // namespace

std::vector<std::string> Of(std::string_view text) {
    std::vector<std::string> words;
    Collect(text, words);
    Unique(words);
    return words;
}

std::vector<std::string> Of(const Recipe& recipe) {
    std::vector<std::string> words;
    Collect(recipe.name.value_or(""), words);
    for (const auto& ingredient : recipe.ingredients)
        Collect(ingredient.foodName.value_or(""), words);
    words.resize(std::min(words.size(), MostOfARecipe));
    Unique(words);
    return words;
}

} // namespace exchange::Words
