#include "exchange/RecipeStore.h"

#include "exchange/Documents.h"
#include "exchange/Moment.h"
#include "exchange/RecipeSearch.h"
#include "exchange/Secrets.h"
#include "exchange/ShownText.h"
#include "exchange/StoredText.h"
#include "exchange/Words.h"

namespace exchange {
namespace {
using soci::into;
using soci::use;

constexpr const char* InsertRecipe =
    "INSERT INTO recipes (RecipeID, RecipeName, ServingName, RecipeYield, Instructions, PrepTime,"
    " EMAILFROM, EMAILTO, ISPUBLIC, Token, IngredientCount, CreatedAt, SentAt, MailedAt)"
    " VALUES (:id, :name, :serving, :yield, :instructions, :time, :from, :to, :public, :token, 0,"
    " :now, 0, 0) ON CONFLICT DO NOTHING";

/// Reserves the new rows, if the token is the creator's, the recipe is not sent yet, and the limit
/// is not exceeded. Until the transaction ends, nobody else can write to the recipe.
constexpr const char* ClaimRows =
    "UPDATE recipes SET IngredientCount = IngredientCount + :n WHERE RecipeID = :id"
    " AND Token = :token AND SentAt = 0 AND HiddenAt = 0 AND IngredientCount + :more <= :most";

constexpr const char* Claim =
    "UPDATE recipes SET SentAt = :now WHERE RecipeID = :id AND SentAt = 0 AND HiddenAt = 0";

std::string InsertIngredient() {
    std::string columns;
    std::string values;
    for (const auto& name : FieldNames()) {
        columns.append(columns.empty() ? "" : ", ").append(name);
        values.append(values.empty() ? ":" : ", :").append(name);
    }
    return "INSERT INTO ingredients (" + columns + ") VALUES (" + values + ")";
}

std::string SelectIngredients() {
    std::string columns;
    for (const auto& name : FieldNames())
        if (name != "ID" && name != "RecipeID")
            columns.append(columns.empty() ? "" : ", ").append(name);
    return "SELECT " + columns + " FROM ingredients WHERE RecipeID = :id ORDER BY ID";
}

/// Reads columns of the documents of a recipe, and the misses of the one who asks for it.
std::string WithMisses(const std::string& columns, const std::string& joins = {}) {
    return "SELECT Misses, " + columns + " FROM (SELECT " + MissGuard::Counting +
           " AS Misses) guess LEFT JOIN documents ON documents.RecipeID = :id" + joins;
}

template <class... Into>
int ReadWithMisses(Connection& connection, const std::string& statement,
                   const MissGuard::Guess& guess, int id, const Into&... columns) {
    std::optional<int> misses;
    guess.With([&](const auto&... uses) {
        connection.First(statement, uses..., use(id), into(misses), columns...);
    });
    return misses.value_or(0);
}

/// Converts the texts of users for their row, or back.
using ChangeOfText = std::string (*)(std::string_view);
void EachText(std::initializer_list<std::optional<std::string>*> texts, ChangeOfText change) {
    for (auto* text : texts)
        if (*text)
            *text = change(**text);
}
void EachText(Recipe& recipe, ChangeOfText change) {
    EachText({&recipe.name, &recipe.servingName, &recipe.instructions}, change);
}
void EachText(Ingredient& row, ChangeOfText change) {
    EachText({&row.foodName, &row.serving}, change);
}
} // namespace

RecipeStore::Created RecipeStore::Create(Recipe recipe) {
    EachText(recipe, StoredText::Of);
    const auto token = Secrets::RandomToken();
    const auto digest = Secrets::Digest(token);
    const auto now = Moment::Now();
    const int isPublic = recipe.isPublic ? 1 : 0;
    for (;;) {
        const int id = Secrets::RandomID();
        if (connection_.Change(InsertRecipe, use(id), use(recipe.name), use(recipe.servingName),
                               use(recipe.yield), use(recipe.instructions), use(recipe.prepTime),
                               use(recipe.from), use(recipe.to), use(isPublic), use(digest),
                               use(now)) == 1)
            return {id, token};
    }
}

void RecipeStore::InsertRows(int id, int firstID, const std::vector<Ingredient>& rows) {
    static const std::string insert = InsertIngredient();
    for (auto row : rows) {
        EachText(row, StoredText::Of);
        [&]<size_t... I>(std::index_sequence<I...>) {
            connection_.Change(insert, use(firstID), use(row.nutrients[I])..., use(row.foodName),
                               use(row.serving), use(id), use(row.quantity));
        }
        (std::make_index_sequence<NutrientCount>());
        ++firstID;
    }
}

RecipeStore::Added RecipeStore::Add(int id, const std::string& token,
                                    const std::vector<Ingredient>& rows, int most) {
    const auto digest = Secrets::Digest(token);
    const int more = static_cast<int>(rows.size());
    Transaction transaction(connection_);
    if (connection_.Change(ClaimRows, use(more), use(id), use(digest), use(more), use(most)) == 0)
        return WhyNotAdded(id, digest);
    int count = 0;
    connection_.First("SELECT IngredientCount FROM recipes WHERE RecipeID = :id", use(id),
                      into(count));
    InsertRows(id, count - more + 1, rows);
    transaction.Commit();
    return Added::Done;
}

RecipeStore::Added RecipeStore::MayAdd(int id, const std::string& token) {
    const auto why = WhyNotAdded(id, Secrets::Digest(token));
    return why == Added::TooMany ? Added::Done : why;
}

RecipeStore::Added RecipeStore::WhyNotAdded(int id, const std::string& digest) {
    std::string token;
    long long sentAt = 0;
    const bool known = connection_.First("SELECT Token, SentAt FROM recipes"
                                         " WHERE RecipeID = :id AND HiddenAt = 0",
                                         use(id), into(token), into(sentAt));
    if (!known || !Secrets::Equal(token, digest))
        return Added::WrongToken;
    return sentAt != 0 ? Added::AlreadySent : Added::TooMany;
}

std::optional<RecipeStore::State> RecipeStore::Find(int id) {
    State state;
    long long sentAt = 0;
    if (!connection_.First("SELECT SentAt, EMAILFROM, EMAILTO FROM recipes"
                           " WHERE RecipeID = :id AND HiddenAt = 0",
                           use(id), into(sentAt), into(state.from), into(state.to)))
        return {};
    state.sent = sentAt != 0;
    return state;
}

std::optional<Recipe> RecipeStore::ReadRow(int id) {
    Recipe recipe;
    int isPublic = 0;
    if (!connection_.First("SELECT RecipeID, RecipeName, ServingName, RecipeYield, Instructions,"
                           " PrepTime, EMAILFROM, EMAILTO, ISPUBLIC FROM recipes"
                           " WHERE RecipeID = :id AND SentAt <> 0 AND HiddenAt = 0",
                           use(id), into(recipe.id), into(recipe.name), into(recipe.servingName),
                           into(recipe.yield), into(recipe.instructions), into(recipe.prepTime),
                           into(recipe.from), into(recipe.to), into(isPublic)))
        return {};
    recipe.isPublic = isPublic != 0;
    EachText(recipe, StoredText::Read);
    return recipe;
}

void RecipeStore::ReadIngredients(Recipe& recipe) {
    static const std::string select = SelectIngredients();
    Ingredient row;
    const auto keep = [&] { EachText(recipe.ingredients.emplace_back(row), StoredText::Read); };
    [&]<size_t... I>(std::index_sequence<I...>) {
        connection_.Each(select, keep, use(recipe.id), into(row.nutrients[I])...,
                         into(row.foodName), into(row.serving), into(row.quantity));
    }
    (std::make_index_sequence<NutrientCount>());
}

std::optional<Recipe> RecipeStore::Finish(int id) {
    const auto now = Moment::Now();
    if (connection_.Change(Claim, use(now), use(id)) == 0)
        return {};
    auto recipe = ReadRow(id);
    ReadIngredients(*recipe);
    MakeReadable(*recipe, now);
    return recipe;
}

void RecipeStore::MakeReadable(const Recipe& recipe, long long sentAt) {
    const auto document = Documents::RecipeDocument(recipe);
    const auto ingredients = Documents::IngredientsDocument(recipe);
    connection_.Change("INSERT INTO documents (RecipeID, RecipeText, IngredientsText)"
                       " VALUES (:id, :recipe, :ingredients)",
                       use(recipe.id), use(document), use(ingredients));
    if (recipe.isPublic)
        Publish(recipe, sentAt);
}

void RecipeStore::Publish(const Recipe& recipe, long long now) {
    const auto calories = recipe.PerServing(CaloriesPosition - 1);
    const auto name = ShownText::Name(recipe.name.value_or(""), ShownText::InList);
    const auto serving = ShownText::Line(recipe.servingName.value_or(""), ShownText::InList);
    connection_.Change("INSERT INTO listing (ListedAt, RecipeID, RecipeName, ServingName, PrepTime,"
                       " Calories) VALUES (:now, :id, :name, :serving, :time, :calories)"
                       " ON CONFLICT (RecipeID) DO UPDATE SET Place = -listing.Place",
                       use(now), use(recipe.id), use(name), use(serving), use(recipe.prepTime),
                       use(calories));
    RecipeSearch(connection_).Add(*PlaceOf(recipe.id), Words::Of(recipe));
}

void RecipeStore::NoteMailed(int id) {
    const auto now = Moment::Now();
    connection_.Change("UPDATE recipes SET MailedAt = :now WHERE RecipeID = :id", use(now),
                       use(id));
}

RecipeStore::Document RecipeStore::Read(int id, Part part, const MissGuard::Guess& guess) {
    static const std::string recipe = WithMisses("RecipeText");
    static const std::string ingredients = WithMisses("IngredientsText");
    Document document;
    document.misses = ReadWithMisses(connection_, part == Part::Recipe ? recipe : ingredients,
                                     guess, id, into(document.text));
    return document;
}

RecipeStore::Shown RecipeStore::ReadShown(int id, const MissGuard::Guess& guess) {
    static const std::string statement =
        WithMisses("RecipeText, IngredientsText, Place",
                   " LEFT JOIN listing ON listing.RecipeID = documents.RecipeID");
    Shown shown;
    std::optional<std::string> recipe;
    std::optional<std::string> ingredients;
    std::optional<long long> place;
    shown.misses = ReadWithMisses(connection_, statement, guess, id, into(recipe),
                                  into(ingredients), into(place));
    if (recipe) {
        shown.recipe = Documents::Read(*recipe, ingredients.value_or(""));
        shown.recipe->isPublic = place.has_value();
    }
    return shown;
}

/// Keeps the place as a negative number: no list shows it, and Show can restore it.
void RecipeStore::Unpublish(int id) {
    if (const auto place = PlaceOf(id))
        RecipeSearch(connection_).Remove(*place);
    connection_.Change("UPDATE listing SET Place = -Place WHERE RecipeID = :id", use(id));
}

bool RecipeStore::Hide(int id) {
    const auto now = Moment::Now();
    Transaction transaction(connection_);
    if (connection_.Change("UPDATE recipes SET HiddenAt = :now"
                           " WHERE RecipeID = :id AND HiddenAt = 0",
                           use(now), use(id)) == 0)
        return false;
    connection_.Change("DELETE FROM documents WHERE RecipeID = :id", use(id));
    Unpublish(id);
    transaction.Commit();
    return true;
}

bool RecipeStore::Show(int id) {
    Transaction transaction(connection_);
    if (connection_.Change("UPDATE recipes SET HiddenAt = 0"
                           " WHERE RecipeID = :id AND HiddenAt <> 0",
                           use(id)) == 0)
        return false;
    long long sentAt = 0;
    connection_.First("SELECT SentAt FROM recipes WHERE RecipeID = :id", use(id), into(sentAt));
    if (auto recipe = ReadRow(id)) {
        ReadIngredients(*recipe);
        MakeReadable(*recipe, sentAt);
    }
    transaction.Commit();
    return true;
}

std::optional<long long> RecipeStore::PlaceOf(int id) {
    long long place = 0;
    const bool listed =
        connection_.First("SELECT Place FROM listing WHERE RecipeID = :id", use(id), into(place));
    return listed ? std::optional(place) : std::nullopt;
}

/// Locks the row first: if the recipe is being sent at this moment, we wait until it is listed.
bool RecipeStore::Remove(int id) {
    Transaction transaction(connection_);
    connection_.Change("UPDATE recipes SET Token = '' WHERE RecipeID = :id", use(id));
    if (const auto place = PlaceOf(id))
        RecipeSearch(connection_).Remove(*place);
    const bool removed =
        connection_.Change("DELETE FROM recipes WHERE RecipeID = :id", use(id)) > 0;
    transaction.Commit();
    return removed;
}

void RecipeStore::SweepUnfinished(long long createdBefore) {
    connection_.ChangeAll("DELETE FROM recipes WHERE RecipeID IN (SELECT RecipeID FROM recipes"
                          " WHERE SentAt = 0 AND CreatedAt < :moment LIMIT :n)",
                          use(createdBefore));
}

void RecipeStore::ForgetAddresses(long long sentBefore) {
    connection_.ChangeAll("UPDATE recipes SET EMAILFROM = '', EMAILTO = '' WHERE RecipeID IN"
                          " (SELECT RecipeID FROM recipes WHERE EMAILTO <> '' AND SentAt <> 0"
                          " AND SentAt < :moment LIMIT :n)",
                          use(sentBefore));
}

} // namespace exchange
