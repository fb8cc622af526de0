#pragma once

#include "foods/FoodList.h"

#include <optional>

class Session;

class Command;

/// The food or the recipe that a command is about. A person names it by its key ("food:16096",
/// "recipe:3", "16096") or by words of its name.
class FoodArgument {
public:
    // This must live as long as the command.
    void AddTo(const Command& command);
    void AddOneTo(const Command& command); ///< in one argument; it can be the key of an entry, too

    /// The message that refuses the text; empty if it can be looked for.
    QString Refusal() const;
    std::optional<qint32> LogKey() const; ///< of an entry: "log:5"
    /// The only food with that key, that whole name, or these words. If the words have none or
    /// several, prints those and gives nothing. Fails on a key that no food has.
    std::optional<Food> Choose(const Session& session) const;

private:
    void AddRecipeFlag(const Command& command);
    QString Text() const;
    FoodList Search() const;

    QStringList words_;
    bool recipe_ = false;
};
