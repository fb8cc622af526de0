#pragma once

#include "exchange/Connection.h"
#include "exchange/MissGuard.h"
#include "exchange/Recipe.h"

#include <optional>
#include <string>
#include <vector>

namespace exchange {

/// One line of the public list, with its texts as they are shown.
struct Listed {
    long long place = 0; ///< the greater, the newer
    int id = 0;
    std::string name;
    std::string servingName;
    std::optional<double> prepTime;
    std::optional<double> calories;
    long long listedAt = 0;
};

/// The recipes of one database. A recipe is unfinished until Finish: its creator can add
/// ingredients and nobody can read it. From then on it never changes.
class RecipeStore {
public:
    explicit RecipeStore(Connection& connection)
        : connection_(connection) {}

    struct Created {
        int id = 0;
        std::string token;
    };
    Created Create(Recipe recipe);

    enum class Added { Done, WrongToken, AlreadySent, TooMany };
    Added MayAdd(int id, const std::string& token); ///< whether Add could do anything
    Added Add(int id, const std::string& token, const std::vector<Ingredient>& rows, int most);

    /// What determines the reply to the sender.
    struct State {
        bool sent = false;
        std::string from;
        std::string to;
    };
    std::optional<State> Find(int id);

    /// Makes an unfinished recipe readable; nothing if it does not exist or was sent before. Only
    /// one caller ever gets the recipe. For the caller's transaction.
    std::optional<Recipe> Finish(int id);
    void NoteMailed(int id);

    /// The stored reply for a sent recipe. `misses` are those of the visitor, read in the same
    /// statement.
    enum class Part { Recipe, Ingredients };
    struct Document {
        std::optional<std::string> text;
        int misses = 0;
    };
    Document Read(int id, Part part, const MissGuard::Guess& guess);
    struct Shown {
        std::optional<Recipe> recipe; ///< without its addresses
        int misses = 0;
    };
    Shown ReadShown(int id, const MissGuard::Guess& guess);
    void ReadIngredients(Recipe& recipe); ///< adds those of its ID

    static constexpr int PageSize = 20;
    struct ListPortion {
        std::vector<Listed> recipes; ///< one more than a page, if there are more, newest first
        long long next = 0;          ///< where to continue the search; 0 if all was searched
    };
    /// The recipes that have all of the words, from a place of the list on or from the newest.
    ListPortion List(const std::vector<std::string>& words, int page,
                     std::optional<long long> from = {});

    bool Hide(int id); ///< nobody can read, find or send it
    bool Show(int id); ///< again, as it was
    bool Remove(int id);
    void SweepUnfinished(long long createdBefore);
    void ForgetAddresses(long long sentBefore);

private:
    void InsertRows(int id, int firstID, const std::vector<Ingredient>& rows);
    Added WhyNotAdded(int id, const std::string& digest);
    std::optional<Recipe> ReadRow(int id);
    void MakeReadable(const Recipe& recipe, long long sentAt);
    std::optional<long long> PlaceOf(int id);
    void Publish(const Recipe& recipe, long long now);
    void Unpublish(int id);

    Connection& connection_;
};

} // namespace exchange
