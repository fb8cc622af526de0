#include "exchange/Words.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace exchange::Words {
namespace {
constexpr size_t Longest = 40; ///< letters of a word that count

/// Letters, digits, and signs that stand for one.
bool Belongs(utf8proc_int32_t letter) {
    const auto category = utf8proc_category(letter);
    return (category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_LO) ||
           (category >= UTF8PROC_CATEGORY_ND && category <= UTF8PROC_CATEGORY_NO);
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

/// In lower case without accents; empty if the text is not UTF-8.
std::string Folded(std::string_view text) {
    constexpr auto manner = static_cast<utf8proc_option_t>(UTF8PROC_COMPAT | UTF8PROC_DECOMPOSE |
                                                           UTF8PROC_CASEFOLD | UTF8PROC_STRIPMARK);
    utf8proc_uint8_t* folded = nullptr;
    const auto size = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                   static_cast<utf8proc_ssize_t>(text.size()), &folded, manner);
    const std::unique_ptr<utf8proc_uint8_t, void (*)(void*)> owner(folded, std::free);
    return size < 0 ? std::string()
                    : std::string(reinterpret_cast<char*>(folded), static_cast<size_t>(size));
}

class Collector {
public:
    explicit Collector(std::vector<std::string>& words)
        : words_(words) {}

    void Collect(std::string_view text) {
        const auto folded = Folded(text);
        const auto* rest = reinterpret_cast<const utf8proc_uint8_t*>(folded.data());
        auto left = static_cast<utf8proc_ssize_t>(folded.size());
        while (left > 0) {
            utf8proc_int32_t letter = 0;
            const auto size = utf8proc_iterate(rest, left, &letter);
            Take(letter,
                 std::string_view(reinterpret_cast<const char*>(rest), static_cast<size_t>(size)));
            rest += size;
            left -= size;
        }
        EndWord();
    }

private:
    void Take(utf8proc_int32_t letter, std::string_view bytes) {
        if (!Belongs(letter))
            EndWord();
        else if (letters_++ < Longest)
            word_ += bytes;
    }

    void EndWord() {
        if (!word_.empty())
            words_.push_back(Singular(word_));
        word_.clear();
        letters_ = 0;
    }

    std::vector<std::string>& words_;
    std::string word_;
    size_t letters_ = 0;
};

void Unique(std::vector<std::string>& words) {
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
}
} // namespace

std::vector<std::string> Of(std::string_view text) {
    std::vector<std::string> words;
    Collector(words).Collect(text);
    Unique(words);
    return words;
}

std::vector<std::string> Of(const Recipe& recipe) {
    std::vector<std::string> words;
    Collector collector(words);
    collector.Collect(recipe.name.value_or(""));
    for (const auto& ingredient : recipe.ingredients)
        collector.Collect(ingredient.foodName.value_or(""));
    words.resize(std::min(words.size(), MostOfARecipe));
    Unique(words);
    return words;
}

} // namespace exchange::Words
