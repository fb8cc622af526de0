#include "records/peers/OpenNutriTracker.h"

#include "records/peers/PeerFile.h"
#include "records/peers/PeerJson.h"
#include "records/peers/PeerReading.h"
#include "records/peers/PeerTables.h"
#include "records/peers/PeerValues.h"
#include "records/text/JsonInput.h"

#include <algorithm>

namespace {
using enum Nutrient;
using enum PeerChoices::Micronutrients;

/// An amount in 100 g or 100 ml, under its name in JSON and in CSV.
struct Amount {
    const char* key;
    AmountColumn column;
    bool isMicronutrient = false; ///< older foods from Open Food Facts hold it in grams
};
constexpr Amount Amounts[] = {
    {"energyKcal100", {"kcal_per_100g", Calories, Unit::Kilocalorie}},
    {"carbohydrates100", {"carbs_per_100g", Carbs, Unit::Gram}},
    {"fat100", {"fat_per_100g", TotalFat, Unit::Gram}},
    {"proteins100", {"protein_per_100g", Protein, Unit::Gram}},
    {"saturatedFat100", {"saturated_fat_per_100g", SatFat, Unit::Gram}},
    {"fiber100", {"fiber_per_100g", Fiber, Unit::Gram}},
    {"monounsaturatedFat100", {"monounsaturated_fat_per_100g", MonoFat, Unit::Gram}},
    {"polyunsaturatedFat100", {"polyunsaturated_fat_per_100g", PolyFat, Unit::Gram}},
    {"cholesterol100", {"cholesterol_per_100g", Cholesterol, Unit::Milligram}, true},
    {"sodium100", {"sodium_per_100g", Sodium, Unit::Milligram}, true},
    {"potassium100", {"potassium_per_100g", Potassium, Unit::Milligram}, true},
    {"magnesium100", {"magnesium_per_100g", Magnesium, Unit::Milligram}, true},
    {"calcium100", {"calcium_per_100g", Calcium, Unit::Milligram}, true},
    {"iron100", {"iron_per_100g", Iron, Unit::Milligram}, true},
    {"zinc100", {"zinc_per_100g", Zinc, Unit::Milligram}, true},
    {"phosphorus100", {"phosphorus_per_100g", Phosphorus, Unit::Milligram}, true},
    {"vitaminC100", {"vitamin_c_per_100g", VitaminC, Unit::Milligram}, true},
    {"vitaminB6100", {"vitamin_b6_per_100g", VitaminB6, Unit::Milligram}, true},
    {"niacin100", {"niacin_per_100g", Niacin, Unit::Milligram}, true},
    {"vitaminA100", {"vitamin_a_per_100g", VitaminA, Unit::RetinolEquivalent}, true},
    {"vitaminB12100", {"vitamin_b12_per_100g", VitaminB12, Unit::Microgram}, true},
};

const QStringList& KnownNames() {
    static const QStringList names = [] {
        QStringList all;
        for (const Amount& amount : Amounts)
            all << QLatin1String(amount.key);
        return all;
    }();
    return names;
}

constexpr double GramsPerOunce = 28.3495;
constexpr double MillilitresPerFluidOunce = 29.5735;

[[noreturn]] void Refuse(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

/// One thing that was eaten, whichever file tells it. `number` gives an amount in 100 g.
struct Intake {
    Origin origin;
    QString day, meal;
    QString name, brands, source;
    std::optional<double> dataVersion;
    std::optional<double> amount;
    QString unit;
    std::optional<double> servingQuantity;
    NutrientAmounts per100;

    bool HoldsOldMicronutrients() const { return source == u"off" && dataVersion.value_or(0) < 1; }
};

class Reader : PeerReading {
public:
    using PeerReading::PeerReading;

    /// The kind of a file is told by what its elements hold.
    void ReadJson(const PeerFile& file) {
        const QJsonArray all = JsonInput::Parsed(file.ReadAll(), file.name).array();
        const QJsonObject first = all.first().toObject();
        const auto forEach = [&](auto take) {
            PeerJson::ForEach(
                all, {file.name, {}, {}}, into_,
                [&](const auto& object, const auto& at) { (this->*take)(object, at); });
        };
        if (first.contains(u"meal") && first.contains(u"amount")) {
            hasJson_ = true;
            forEach(&Reader::TakeIntake);
        } else if (first.contains(u"weightKg")) {
            forEach(&Reader::TakeWeight);
        } else if (first.contains(u"aggregatedNutrimentsPer100")) {
            forEach(&Reader::TakeRecipe);
        } else {
            into_.LeaveOut({file.name, {}, {}},
                           QStringLiteral("Only food, weights and recipes are kept here."));
        }
    }

    void ReadIntake(PeerTable& table) {
        if (hasJson_)
            return PeerTables::LeaveOut(
                table, QStringLiteral("The same was taken from user_intake.json."), into_);
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            Take(IntakeOf(table));
        });
    }

    void LeaveOut(PeerTable& table) {
        PeerTables::LeaveOut(table, QStringLiteral("Only food, weights and recipes are kept here."),
                             into_);
    }

private:
    Intake IntakeOf(const PeerTable& table) const {
        Intake intake{table.Here(),
                      table.Text("date_time").left(10),
                      table.Text("type"),
                      table.Text("meal_name"),
                      table.Text("meal_brands"),
                      table.Text("meal_source"),
                      table.Number("meal_data_version"),
                      table.Number("amount"),
                      table.Text("unit"),
                      table.Number("meal_serving_quantity"),
                      {}};
        intake.per100 = AmountsOf(intake.HoldsOldMicronutrients(), [&](const Amount& amount) {
            return table.Number(amount.column.name);
        });
        return intake;
    }

    void TakeIntake(const QJsonObject& object, const Origin& origin) {
        const QJsonObject meal = object[u"meal"].toObject();
        Intake intake{origin,
                      object[u"dateTime"].toString().left(10),
                      object[u"type"].toString(),
                      meal[u"name"].toString(),
                      meal[u"brands"].toString(),
                      meal[u"source"].toString(),
                      PeerJson::Number(meal[u"dataVersion"]),
                      PeerJson::Number(object[u"amount"]),
                      object[u"unit"].toString(),
                      PeerJson::Number(meal[u"servingQuantity"]),
                      {}};
        intake.per100 = AmountsOf(meal[u"nutriments"].toObject(), intake.HoldsOldMicronutrients());
        Take(intake);
    }

    NutrientAmounts AmountsOf(const QJsonObject& nutriments, bool areOld) const {
        PeerJson::TellOthers(nutriments, KnownNames(), into_);
        return AmountsOf(areOld, [&](const Amount& amount) {
            return PeerJson::Number(nutriments[QLatin1String(amount.key)]);
        });
    }

    template <class Number> NutrientAmounts AmountsOf(bool areOld, Number number) const {
        NutrientAmounts amounts;
        for (const Amount& amount : Amounts) {
            const auto value = number(amount);
            rules_.Take(amounts, amount.column,
                        areOld && amount.isMicronutrient ? OldValue(amount, value) : value);
        }
        return amounts;
    }

    /// In the unit of the column.
    std::optional<double> OldValue(const Amount& amount, std::optional<double> value) const {
        if (!value || choices_.oldMicronutrients == AsNamed)
            return value;
        if (choices_.oldMicronutrients == Grams)
            return *value * (amount.column.unit == Unit::Milligram ? 1e3 : 1e6);
        into_.Remark(QStringLiteral(
            "Minerals and vitamins of older foods from Open Food Facts were left out: the file may "
            "hold them in grams. --old-micronutrients grams or as-named takes them."));
        return std::nullopt;
    }

    void Take(const Intake& intake) {
        ImportedEntry entry{intake.origin, PeerValues::IsoDay(intake.day), intake.meal, {}};
        const QString name = PeerValues::Name(intake.name);
        entry.food.name =
            intake.brands.isEmpty() ? name : PeerValues::Line(name + ", " + intake.brands);
        if (!intake.amount || !(*intake.amount > 0))
            Refuse(QStringLiteral("It does not say how much was eaten."));
        entry.food.amounts = PeerAmounts::Scaled(intake.per100, 100, GramsEaten(intake));
        PeerValues::SetPortion(entry.food, *intake.amount, intake.unit);
        into_.entries.push_back(entry);
    }

    /// The grams or millilitres that were eaten.
    double GramsEaten(const Intake& intake) {
        const QString unit = intake.unit.toLower();
        if (unit == u"g" || unit == u"ml" || unit == u"g/ml" || unit == u"gml")
            return *intake.amount;
        if (unit == u"serving")
            return *intake.amount * ServingOf(intake);
        if (unit == u"oz")
            return Ounces(intake, GramsPerOunce);
        if (unit == u"fl.oz")
            return Ounces(intake, MillilitresPerFluidOunce);
        Refuse("The unit \"" + intake.unit.left(40) + "\" has no known weight.");
    }

    double ServingOf(const Intake& intake) {
        if (!intake.servingQuantity || !(*intake.servingQuantity > 0))
            Refuse(QStringLiteral("It does not say what a serving weighs."));
        Warn(intake, QStringLiteral("servings"));
        return *intake.servingQuantity;
    }

    double Ounces(const Intake& intake, double ounce) {
        Warn(intake, QStringLiteral("ounces"));
        return *intake.amount * ounce;
    }

    void Warn(const Intake& intake, const QString& unit) {
        into_.NoteChange(intake.origin, "The amount was read in " + unit +
                                            "; some versions of the program write grams here.");
    }

    void TakeWeight(const QJsonObject& object, const Origin& origin) {
        const QDate day = PeerValues::IsoDay(object[u"date"].toString().left(10));
        const auto weight = PeerJson::Number(object[u"weightKg"]);
        into_.weights.push_back({origin, day, PeerValues::Pounds(weight, WeightUnit::Kilogram)});
    }

    /// What its ingredients are is not known: they count as one.
    void TakeRecipe(const QJsonObject& object, const Origin& origin) {
        const auto weight = PeerJson::Number(object[u"totalWeightG"]);
        if (!weight || !(*weight > 0))
            Refuse(QStringLiteral("It does not say what the recipe weighs."));
        const QString name = PeerValues::Name(object[u"name"].toString());
        const NutrientAmounts per100 =
            AmountsOf(object[u"aggregatedNutrimentsPer100"].toObject(), false);
        ImportedRecipe recipe{origin, {}, {}};
        recipe.recipe[RecipeField::Name] = name;
        recipe.recipe[RecipeField::Yield] = PeerJson::Number(object[u"servingsCount"]).value_or(1);
        recipe.recipe[RecipeField::Serving] = QStringLiteral("serving");
        recipe.recipe[RecipeField::Instructions] = object[u"description"].toString();
        recipe.recipe[RecipeField::Time] = 0;
        recipe.ingredients.push_back(
            {name, QStringLiteral("whole recipe"), 1, PeerAmounts::Scaled(per100, 100, *weight)});
        into_.NoteChange(origin, QStringLiteral("The recipe was taken without its ingredients."));
        into_.recipes.push_back(recipe);
    }

    bool hasJson_ = false;
};

constexpr TableKind<Reader> Kinds[] = {
    {{"date_time", "type", "amount", "unit", "meal_name"}, &Reader::ReadIntake},
    {{"day", "calories_tracked"}, &Reader::LeaveOut},
    {{"date", "burned_kcal"}, &Reader::LeaveOut},
};

bool IsJson(const PeerFile& file) {
    return file.name.endsWith(u".json", Qt::CaseInsensitive);
}
} // namespace

void OpenNutriTracker::Read(const std::vector<PeerFile>& files, const PeerChoices& choices,
                            Imported& into) {
    Reader reader(choices, into);
    std::vector<PeerFile> tables;
    for (const PeerFile& file : files)
        if (IsJson(file))
            reader.ReadJson(file);
        else
            tables.push_back(file);
    PeerTables(QStringLiteral("OpenNutriTracker"), tables, {}, into)
        .Read(reader, std::span<const TableKind<Reader>>(Kinds));
}
