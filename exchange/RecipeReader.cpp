#include "exchange/RecipeReader.h"

#include "exchange/JsonReader.h"
#include "exchange/MailAddress.h"
#include "exchange/Refusal.h"
#include "exchange/Text.h"

#include <algorithm>
#include <numeric>

namespace exchange::RecipeReader {
namespace {

[[noreturn]] void Refuse(const std::string& reason) {
    throw Refusal(400, reason);
}

/// Each converts a value or refuses it. Null is the same as a missing value.
std::optional<std::string> TextOf(JsonValue&& value, std::string_view name) {
    if (std::holds_alternative<std::nullptr_t>(value))
        return {};
    if (auto* text = std::get_if<std::string>(&value))
        return std::move(*text);
    Refuse(std::string(name) + " must be a string.");
}

std::optional<double> NumberOf(JsonValue&& value, std::string_view name) {
    if (std::holds_alternative<std::nullptr_t>(value))
        return {};
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
    auto text = TextOf(std::move(value), name).value_or("");
    if (text.size() > LongestMailAddress)
        Refuse(std::string(name) + " is longer than " + std::to_string(LongestMailAddress) +
               " bytes.");
    if (!IsPlain(text))
        Refuse(std::string(name) + " contains a control character.");
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
    return recipe.name == "";
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

/// The body of a new recipe: an object with the fields above. Other fields are ignored.
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
                return field.take(std::move(value), recipe, field.name);
    }

private:
    std::string name_;
};

/// For each of our positions, the position of its value in the rows of a body.
using Places = std::array<size_t, FieldCount>;

/// The order of programs that do not name their fields.
Places UnnamedPlaces() {
    Places places{};
    std::iota(places.begin(), places.end(), size_t{0});
    for (size_t i = 0; i < NutrientCount; ++i)
        places[static_cast<size_t>(LabelOrder()[i]) + 1] = i + 1;
    return places;
}

/// Each of our names must be there, in upper or lower case. The count excludes any other name.
Places NamedPlaces(const std::vector<JsonValue>& fields) {
    Places places{};
    for (size_t position = 0; position < FieldCount; ++position) {
        const auto name = Upper(FieldNames()[position]);
        const auto isOurs = [&](const JsonValue& field) {
            const auto* text = std::get_if<std::string>(&field);
            return text && Upper(*text) == name;
        };
        const auto found = std::find_if(fields.begin(), fields.end(), isOurs);
        if (found == fields.end() || fields.size() != FieldCount)
            Refuse("\"fields\" must be an array of the " + std::to_string(FieldCount) +
                   " names of the fields.");
        places[position] = static_cast<size_t>(found - fields.begin());
    }
    return places;
}

/// A value that is null or missing stays empty.
Ingredient IngredientOf(std::vector<JsonValue>& row, const Places& places) {
    static const auto names = FieldNames();
    row.resize(FieldCount);
    const auto take = [&](size_t position, auto& member, const auto& convert) {
        member = convert(std::move(row[places[position]]), names[position]);
    };
    Ingredient ingredient;
    for (size_t i = 0; i < NutrientCount; ++i)
        take(i + 1, ingredient.nutrients[i], NumberOf);
    take(FoodNamePosition, ingredient.foodName, TextOf);
    take(ServingPosition, ingredient.serving, TextOf);
    take(QuantityPosition, ingredient.quantity, NumberOf);
    return ingredient;
}

/// The body of ingredients: an object with an array of rows, each an array of values. It may also
/// have the names of the fields, and the quantities, since programs leave the last position out of
/// their rows. The names may come last, so the rows are interpreted at the end.
class RowsListener : public JsonListener {
public:
    explicit RowsListener(int most)
        : most_(static_cast<size_t>(most)) {}

    std::vector<Ingredient> Ingredients() {
        if (!rows_)
            RefuseBody();
        const auto places = fields_ ? NamedPlaces(*fields_) : UnnamedPlaces();
        std::vector<Ingredient> ingredients;
        for (auto& row : *rows_)
            ingredients.push_back(IngredientOf(row, places));
        TakeQuantities(ingredients);
        return ingredients;
    }

    void Key(int depth, std::string&& name) override {
        if (depth == 1)
            key_ = std::move(name);
    }

    void Value(int depth, JsonValue&& value) override {
        if (depth == 0 && value != JsonValue(JsonGroup::Object))
            RefuseBody();
        if (depth == 1)
            Begin(value);
        else if (depth == 2 && key_ == "rows")
            BeginRow(value);
        else if (depth == 2)
            AddBeside(std::move(value));
        else if (depth == 3 && key_ == "rows")
            AddToRow(std::move(value));
    }

    void End(int depth) override {
        if (depth == 2 && key_ == "rows" && rows_->back().empty())
            RefuseRow();
    }

private:
    using Values = std::vector<JsonValue>;

    [[noreturn]] static void RefuseBody() {
        Refuse("The body must be an object with an array \"rows\".");
    }
    [[noreturn]] static void RefuseRow() {
        Refuse("A row must be an array of 1 to " + std::to_string(FieldCount) + " values.");
    }
    [[noreturn]] static void RefuseQuantities() {
        Refuse("\"quantities\" must be an array with a number or null for each row.");
    }

    void Begin(const JsonValue& value) {
        const bool isArray = value == JsonValue(JsonGroup::Array);
        if (key_ == "rows" && !isArray)
            RefuseBody();
        if (key_ == "rows")
            rows_.emplace();
        else if (key_ == "fields")
            fields_.emplace(isArray ? 0 : 1);
        else if (key_ == "quantities" && isArray)
            quantities_.emplace();
        else if (key_ == "quantities" && !std::holds_alternative<std::nullptr_t>(value))
            RefuseQuantities();
    }

    void BeginRow(const JsonValue& value) {
        if (value != JsonValue(JsonGroup::Array))
            RefuseRow();
        if (rows_->size() == most_)
            throw Refusal(413,
                          "A recipe can have at most " + std::to_string(most_) + " ingredients.");
        rows_->emplace_back();
    }

    void AddToRow(JsonValue&& value) {
        if (rows_->back().size() == FieldCount)
            RefuseRow();
        rows_->back().push_back(std::move(value));
    }

    void AddBeside(JsonValue&& value) {
        if (key_ == "fields" && fields_->size() <= FieldCount)
            fields_->push_back(std::move(value));
        else if (key_ == "quantities" && quantities_ && quantities_->size() <= most_)
            quantities_->push_back(std::move(value));
    }

    void TakeQuantities(std::vector<Ingredient>& ingredients) {
        if (!quantities_)
            return;
        if (quantities_->size() != ingredients.size())
            RefuseQuantities();
        for (size_t i = 0; i < ingredients.size(); ++i)
            if (const auto quantity = NumberOf(std::move((*quantities_)[i]), "A quantity"))
                ingredients[i].quantity = quantity;
    }

    size_t most_;
    std::string key_;
    std::optional<std::vector<Values>> rows_;
    std::optional<Values> fields_;
    std::optional<Values> quantities_;
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
    return listener.Ingredients();
}

} // namespace exchange::RecipeReader
