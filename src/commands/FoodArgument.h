#pragma once

#include "foods/FoodList.h"

#include <optional>
#include <string>
#include <vector>

class Session;

namespace CLI {
class App;
}

/// The food or the recipe that a command is about. A person names it by its key ("food:16096",
/// "recipe:3", "16096") or by words of its name.
class FoodArgument {
public:
    void AddTo(CLI::App& command); ///< this must live as long as the command

    /// The message that refuses the text; empty if it can be looked for.
    QString Refusal() const;
    /// The only food with that key, that whole name, or these words. If the words have none or
    /// several, prints those and gives nothing. Fails on a key that no food has.
    std::optional<Food> Choose(const Session& session) const;

private:
    QString Text() const;
    FoodList Search() const;

    std::vector<std::string> words_;
    bool recipe_ = false;
};
