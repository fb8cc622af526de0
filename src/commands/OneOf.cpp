#include "commands/OneOf.h"

#include <algorithm>

#include <CLI/CLI.hpp>

CLI::Validator OneOf(const std::vector<std::string>& words) {
    const auto accept = [words](std::string& text) {
        const auto same =
            std::ranges::find(words, CLI::detail::to_lower(text),
                              [](const auto& word) { return CLI::detail::to_lower(word); });
        if (same == words.end())
            return '"' + text + "\" is not one of " + CLI::detail::join(words, ", ") + '.';
        text = *same;
        return std::string();
    };
    return {accept, '{' + CLI::detail::join(words) + '}'};
}
