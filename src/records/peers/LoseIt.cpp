#include "records/peers/LoseIt.h"

#include "records/peers/MissingWeightUnit.h"
#include "records/peers/PeerReading.h"
#include "records/peers/PeerTables.h"
#include "records/peers/PeerValues.h"
#include "runtime/Convert.h"

namespace {
using enum Nutrient;
using enum PeerChoices::DateOrder;

constexpr AmountColumn Amounts[] = {
    {"Calories", Calories, Unit::Kilocalorie}, {"Fat (g)", TotalFat, Unit::Gram},
    {"Saturated Fat (g)", SatFat, Unit::Gram}, {"Cholesterol (mg)", Cholesterol, Unit::Milligram},
    {"Sodium (mg)", Sodium, Unit::Milligram},  {"Carbohydrates (g)", Carbs, Unit::Gram},
    {"Fiber (g)", Fiber, Unit::Gram},          {"Protein (g)", Protein, Unit::Gram},
};

/// A height tells the unit: nobody is 100 inches or 96 centimetres tall.
struct Heights {
    double from, to;
    WeightUnit unit;
    const char* reason;
};
constexpr Heights HeightUnits[] = {
    {100, 250, WeightUnit::Kilogram, " gives the height in cm"},
    {36, 96, WeightUnit::Pound, " gives the height in inches"},
};

class Reader : PeerReading {
public:
    Reader(const PeerChoices& choices, Imported& into)
        : PeerReading(choices, into)
        , weightUnit_(choices, into) {}

    void ReadProfile(PeerTable& table) {
        table.ForEachRow(into_, [&] {
            if (table.Text("Name") == u"Height")
                InferUnit(table.Number("Value").value_or(0), table.File());
            into_.LeaveOut(table.Here(),
                           QStringLiteral("A profile is made on the profile screen."));
        });
    }

    void ReadWeights(PeerTable& table) {
        const WeightUnit unit = weightUnit_.Of(table.File());
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            if (!LeaveOutDeleted(table))
                into_.weights.push_back({table.Here(), Day(table),
                                         PeerValues::Pounds(table.Number("Weight"), unit),
                                         LastUpdated(table)});
        });
    }

    /// Rows of exercise are shorter than the header.
    void ReadFoods(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        table.ForEachRow(into_, [&] {
            if (table.Text("Type") == u"Exercise")
                return into_.LeaveOut(table.Here(), QStringLiteral("No exercise is kept here."));
            table.RequireWholeRow();
            if (!LeaveOutDeleted(table))
                TakeFood(table, amounts);
        });
    }

    void ReadOwnFoods(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            const QString brand = table.Text("Brand");
            const QString name = PeerValues::Name(table.Text("Name"));
            into_.foods.push_back(
                {table.Here(),
                 {brand.isEmpty() ? name : PeerValues::Line(name + ", " + brand),
                  PeerValues::Line(table.Text("Quantity") + u' ' + table.Text("Measure")),
                  amounts.Of(table)}});
        });
    }

    void ReadRecipes(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            TakeRecipe(table, amounts.Of(table));
        });
    }

    void LeaveOut(PeerTable& table) {
        PeerTables::LeaveOut(table, QStringLiteral("Only food and weight are kept here."), into_);
    }

private:
    static QDate Day(const PeerTable& table) {
        return PeerValues::SlashDay(table.Text("Date"), MonthFirst);
    }

    void InferUnit(double height, const QString& file) {
        for (const auto& [from, to, unit, reason] : HeightUnits)
            if (height >= from && height <= to)
                weightUnit_.Infer(unit, file + QLatin1String(reason));
    }

    bool LeaveOutDeleted(const PeerTable& table) {
        const QString deleted = table.Text("Deleted").toLower();
        if (deleted.isEmpty() || deleted == u"0" || deleted == u"false")
            return false;
        if (deleted != u"1" && deleted != u"true")
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("It does not say whether it was deleted."));
        into_.LeaveOut(table.Here(), QStringLiteral("It was deleted in Lose It!."));
        return true;
    }

    static qint64 LastUpdated(const PeerTable& table) {
        const QDateTime time = QDateTime::fromString(table.Text("Last Updated"), Qt::ISODate);
        return time.isValid() ? time.toMSecsSinceEpoch() : 0;
    }

    void TakeFood(const PeerTable& table, const AmountColumns& amounts) {
        ImportedEntry entry{table.Here(), Day(table), table.Text("Meal") + table.Text("Type"), {}};
        entry.food.name = PeerValues::Name(table.Text("Name"));
        entry.food.amounts = amounts.Of(table);
        if (const auto quantity = table.Number("Quantity"))
            PeerValues::SetPortion(entry.food, *quantity, table.Text("Units"));
        else
            entry.food.serving = PeerValues::Line(table.Text("Units"));
        into_.entries.push_back(entry);
    }

    /// The amounts are those of the whole recipe. Its ingredients are in no file.
    void TakeRecipe(const PeerTable& table, const NutrientAmounts& whole) {
        ImportedRecipe recipe{table.Here(), {}, {}};
        const QString name = PeerValues::Name(table.Text("Name"));
        recipe.recipe[RecipeField::Name] = name;
        recipe.recipe[RecipeField::Yield] = table.Number("Quantity").value_or(1);
        recipe.recipe[RecipeField::Serving] = PeerValues::Line(table.Text("Measure"));
        recipe.recipe[RecipeField::Instructions] =
            QStringLiteral("The export of Lose It! names no ingredients.");
        recipe.recipe[RecipeField::Time] = 0;
        recipe.ingredients.push_back({name, QStringLiteral("whole recipe"), 1, whole});
        into_.recipes.push_back(recipe);
    }

    MissingWeightUnit weightUnit_;
};

constexpr TableKind<Reader> Kinds[] = {
    {{"Date", "Name", "Value"}, &Reader::LeaveOut},
    {{"Name", "Value"}, &Reader::ReadProfile},
    {{"Date", "Weight", "Last Updated"}, &Reader::ReadWeights},
    {{"Name", "UniqueId", "Quantity", "Measure", "Author"}, &Reader::ReadRecipes},
    {{"Name", "UniqueId", "Quantity", "Measure", "Calories"}, &Reader::ReadOwnFoods},
    {{"Date", "Name", "Quantity", "Units", "Fat (g)"}, &Reader::ReadFoods},
    {{"Date", "Name", "Type", "Quantity", "Deleted"}, &Reader::LeaveOut},
    {{"Date", "Food cals"}, &Reader::LeaveOut},
    {{"Date", "Value", "Secondary Value"}, &Reader::LeaveOut},
    {{"Date", "Title", "Body"}, &Reader::LeaveOut},
    {{"Exercise", "Mets"}, &Reader::LeaveOut},
    {{"FoodUniqueId", "Measure", "Quantity"}, &Reader::LeaveOut},
};
} // namespace

void LoseIt::Read(const std::vector<PeerFile>& files, const PeerChoices& choices, Imported& into) {
    Reader reader(choices, into);
    const NumberFormat numbers{.thousands = u','};
    PeerTables(QStringLiteral("Lose It!"), files, numbers, into)
        .Read(reader, std::span<const TableKind<Reader>>(Kinds));
}
