#include "exchange/RecipeReader.h"

#include "exchange/JsonReader.h"
#include "exchange/Refusal.h"
#include "exchange/Text.h"

namespace exchange::RecipeReader {
namespace {
constexpr size_t LongestAddress = 320;

[[noreturn]] void Refuse(const std::string& reason) {
    throw Refusal(400, reason);
}

/// Each takes a value into its place, or refuses it; null stands for a value that is not there.
std::string TextOf(JsonValue&& value, std::string_view name) {
    if (std::holds_alternative<std::nullptr_t>(value))
        return {};
    if (auto* text = std::get_if<std::string>(&value))
        return std::move(*text);
    Refuse(std::string(name) + " must be a text.");
}

double NumberOf(JsonValue&& value, std::string_view name) {
    if (std::holds_alternative<std::nullptr_t>(value))
        return 0;
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    Refuse(std::string(name) + " must be a number.");
}

bool TruthOf(JsonValue&& value, std::string_view name) {
    if (std::holds_alternative<std::nullptr_t>(value))
        return false;
    if (const auto* truth = std::get_if<bool>(&value))
        return *truth;
    Refuse(std::string(name) + " must be true or false.");
}

std::string AddressOf(JsonValue&& value, std::string_view name) {
    auto text = TextOf(std::move(value), name);
    if (text.size() > LongestAddress)
        Refuse(std::string(name) + " is longer than " + std::to_string(LongestAddress) + " bytes.");
    if (!IsPlain(text))
        Refuse(std::string(name) + " holds a control character.");
    return text;
}

template <auto Member, auto Convert>
void Take(JsonValue&& value, Recipe& recipe, const char* name) {
    recipe.*Member = Convert(std::move(value), name);
}

struct Field {
    const char* name;
    void (*take)(JsonValue&&, Recipe&, const char* name);
    bool (*isMissing)(const Recipe&); ///< null if the field may be left out
};

template <auto Member> bool IsBlank(const Recipe& recipe) {
    return Trimmed(recipe.*Member).empty();
}
bool IsNameless(const Recipe& recipe) {
    return recipe.name.empty();
}

constexpr Field Fields[] = {
    {"RecipeName", Take<&Recipe::name, TextOf>, IsNameless},
    {"ServingName", Take<&Recipe::servingName, TextOf>, nullptr},
    {"Instructions", Take<&Recipe::instructions, TextOf>, nullptr},
    {"RecipeYield", Take<&Recipe::yield, NumberOf>, nullptr},
    {"PrepTime", Take<&Recipe::prepTime, NumberOf>, nullptr},
    {"EMAILFROM", Take<&Recipe::from, AddressOf>, IsBlank<&Recipe::from>},
    {"EMAILTO", Take<&Recipe::to, AddressOf>, IsBlank<&Recipe::to>},
    {"ISPUBLIC", Take<&Recipe::isPublic, TruthOf>, nullptr},
};

/// The body of a new recipe: an object of the fields above. Others are passed over.
class RecipeListener : public JsonListener {
public:
    Recipe recipe;

    void Key(int, std::string&& name) override { name_ = std::move(name); }
    void End(int) override {}

    void Value(int depth, JsonValue&& value) override {
        if (depth == 0 && value != JsonValue(JsonGroup::Object))
            Refuse("The body must be an object.");
        if (depth != 1)
            return;
        for (const auto& field : Fields)
            if (field.name == name_)
                field.take(std::move(value), recipe, field.name);
    }

private:
    std::string name_;
};

/// The body of ingredients: an object with an array of rows, each an array of values by position.
class RowsListener : public JsonListener {
public:
    explicit RowsListener(int most)
        : most_(static_cast<size_t>(most)) {}

    std::vector<Ingredient> ingredients;
    bool anyRows = false;

    void Key(int depth, std::string&& name) override {
        if (depth == 1)
            inRows_ = name == "rows";
    }

    void Value(int depth, JsonValue&& value) override {
        if (depth == 0 || (depth == 1 && inRows_))
            BeginBody(depth, value);
        else if (depth == 2 && inRows_)
            BeginRow(value);
        else if (depth == 3 && inRows_)
            TakeValue(std::move(value));
    }

    void End(int depth) override {
        if (depth == 2 && inRows_ && position_ == 0)
            RefuseRow();
    }

private:
    [[noreturn]] static void RefuseRow() {
        Refuse("A row must be an array of 1 to " + std::to_string(FieldCount) + " values.");
    }

    void BeginBody(int depth, const JsonValue& value) {
        if (value != JsonValue(depth == 0 ? JsonGroup::Object : JsonGroup::Array))
            Refuse("The body must be an object with an array \"rows\".");
        anyRows = depth == 1;
        ingredients.clear();
    }

    void BeginRow(const JsonValue& value) {
        if (value != JsonValue(JsonGroup::Array))
            RefuseRow();
        if (ingredients.size() == most_)
            throw Refusal(413, "A recipe takes " + std::to_string(most_) + " ingredients at most.");
        ingredients.emplace_back();
        position_ = 0;
    }

    /// A position that is null or not there keeps nothing.
    void TakeValue(JsonValue&& value) {
        const auto position = position_++;
        if (position >= FieldCount)
            RefuseRow();
        if (std::holds_alternative<std::nullptr_t>(value))
            return;
        static const auto names = FieldNames();
        auto& row = ingredients.back();
        if (position >= 1 && position <= NutrientCount)
            row.nutrients[position - 1] = NumberOf(std::move(value), names[position]);
        else if (position == FoodNamePosition)
            row.foodName = TextOf(std::move(value), names[position]);
        else if (position == ServingPosition)
            row.serving = TextOf(std::move(value), names[position]);
        else if (position == QuantityPosition)
            row.quantity = NumberOf(std::move(value), names[position]);
    }

    size_t most_;
    bool inRows_ = false;
    size_t position_ = 0;
};
} // namespace

Recipe ReadRecipe(const std::string& body) {
    RecipeListener listener;
    JsonReader::Read(body, listener);
    for (const auto& field : Fields)
        if (field.isMissing && field.isMissing(listener.recipe))
            Refuse(std::string(field.name) + " is missing.");
    return std::move(listener.recipe);
}

std::vector<Ingredient> ReadIngredients(const std::string& body, int most) {
    RowsListener listener(most);
    JsonReader::Read(body, listener);
    if (!listener.anyRows)
        Refuse("The body must be an object with an array \"rows\".");
    return std::move(listener.ingredients);
}

} // namespace exchange::RecipeReader
