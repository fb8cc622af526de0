#include "records/document/DocumentSection.h"

#include "store/Schema.h"

#include <algorithm>

namespace {
constexpr DocumentField ProfileFields[] = {
    {"name", "UserName"},
    {"gender", "gender"},
    {"age", "age"},
    {"height", "height"},
    {"currentWeight", "current_weight"},
    {"desiredWeight", "desired_weight"},
    {"activityLevel", "activity_level"},
    {"sodiumFlag", "flagsodium"},
    {"cholesterolFlag", "flagcholesterol"},
    {"sodiumMax", "sodiumMAX"},
    {"cholesterolMax", "cholesterolMAX"},
};
constexpr DocumentField FoodFields[] = {
    {"name", "FoodName"},       {"servingA", "Serv_Desc_A"}, {"servingB", "Serv_Desc_B"},
    {"gramsA", "Serv_GM_WT_A"}, {"gramsB", "Serv_GM_WT_B"},  {"source", "NDB_No"},
};
constexpr DocumentField RecipeFields[] = {
    {"name", "RecipeName"},           {"serving", "ServingName"},      {"yield", "RecipeYield"},
    {"instructions", "Instructions"}, {"preparationTime", "PrepTime"},
};
constexpr DocumentField IngredientFields[] = {
    {"food", "FoodName"}, {"serving", "Serving"}, {"quantity", "QTY"}};
constexpr DocumentField LooseIngredientFields[] = {
    {"recipe", "RecipeID"}, {"food", "FoodName"}, {"serving", "Serving"}, {"quantity", "QTY"}};
constexpr DocumentField LogFields[] = {
    {"profile", "UID"},     {"date", "UDate"}, {"meal", "Meal"},    {"food", "FoodName"},
    {"serving", "Serving"}, {"foodKey", "ID"}, {"quantity", "QTY"},
};
constexpr DocumentField WeightFields[] = {
    {"profile", "UID"}, {"date", "UDate"}, {"weight", "Weight"}};
} // namespace

static_assert(Schema::LastStockFood == 23508); // the condition of own foods

const DocumentSection DocumentSections::Profiles{
    .name = "profiles",
    .table = "profiles",
    .key = "UID",
    .fields = ProfileFields,
    .amounts = "targets",
    .nutrient = &NutrientInfo::profileColumn,
};
const DocumentSection DocumentSections::Foods{
    .name = "foods",
    .table = "FOODS",
    .key = "ID",
    .fields = FoodFields,
    .amounts = "amounts",
    .nutrient = &NutrientInfo::profileColumn,
    .rows = "ID > 23508",
};
const DocumentSection DocumentSections::Ingredients{
    .name = "ingredients",
    .table = "Ingredients",
    .parent = "RecipeID",
    .fields = IngredientFields,
    .amounts = "amounts",
    .nutrient = &NutrientInfo::logColumn,
    .rows = "RecipeID = ?1",
};
const DocumentSection DocumentSections::Recipes{
    .name = "recipes",
    .table = "Recipes",
    .key = "RecipeID",
    .fields = RecipeFields,
    .children = &DocumentSections::Ingredients,
};
const DocumentSection DocumentSections::LooseIngredients{
    .name = "looseIngredients",
    .table = "Ingredients",
    .fields = LooseIngredientFields,
    .amounts = "amounts",
    .nutrient = &NutrientInfo::logColumn,
    .rows = "RecipeID IS NULL OR RecipeID NOT IN (SELECT RecipeID FROM Recipes)",
};
const DocumentSection DocumentSections::Log{
    .name = "log",
    .table = "USER_FOODS",
    .fields = LogFields,
    .amounts = "amounts",
    .nutrient = &NutrientInfo::logColumn,
};
const DocumentSection DocumentSections::Weights{
    .name = "weights",
    .table = "USER_WEIGHTS",
    .fields = WeightFields,
};

std::string DocumentSection::Columns() const {
    std::string columns;
    for (const DocumentField& field : fields)
        columns += (columns.empty() ? "" : ", ") + std::string(field.column);
    if (amounts != nullptr)
        for (const Nutrient id : StoredOrder())
            columns += ", " + std::string(Info(id).*nutrient);
    return columns;
}

int DocumentSection::ColumnCount() const {
    return int(fields.size()) + (amounts != nullptr ? NutrientCount : 0);
}

const DocumentField* DocumentSection::FindField(std::string_view member) const {
    const auto found = std::ranges::find(fields, member, &DocumentField::name);
    return found == fields.end() ? nullptr : &*found;
}

std::span<const DocumentSection* const> DocumentSections::Lists() {
    static constexpr const DocumentSection* all[] = {&Profiles,         &Foods, &Recipes,
                                                     &LooseIngredients, &Log,   &Weights};
    return all;
}

const DocumentSection* DocumentSections::Find(std::string_view name) {
    for (const DocumentSection* section : Lists())
        if (section->name == name)
            return section;
    return nullptr;
}
