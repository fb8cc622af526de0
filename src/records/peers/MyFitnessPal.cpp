#include "records/peers/MyFitnessPal.h"

#include "records/peers/MissingWeightUnit.h"
#include "records/peers/PeerReading.h"
#include "records/peers/PeerTables.h"
#include "records/peers/PeerValues.h"

namespace {
using enum Nutrient;

/// Vitamin A, Vitamin C, Calcium and Iron are missing: some files give them as a percentage of a
/// daily value, others in milligrams, and none says which.
constexpr AmountColumn Amounts[] = {
    {"Calories", Calories, Unit::Kilocalorie},    {"Fat (g)", TotalFat, Unit::Gram},
    {"Saturated Fat", SatFat, Unit::Gram},        {"Polyunsaturated Fat", PolyFat, Unit::Gram},
    {"Monounsaturated Fat", MonoFat, Unit::Gram}, {"Cholesterol", Cholesterol, Unit::Milligram},
    {"Sodium (mg)", Sodium, Unit::Milligram},     {"Potassium", Potassium, Unit::Milligram},
    {"Carbohydrates (g)", Carbs, Unit::Gram},     {"Fiber", Fiber, Unit::Gram},
    {"Dietary Fiber (g)", Fiber, Unit::Gram},     {"Protein (g)", Protein, Unit::Gram},
};

struct Share {
    Nutrient part, whole;
};
constexpr Share Shares[] = {
    {SatFat, TotalFat}, {PolyFat, TotalFat}, {MonoFat, TotalFat}, {Fiber, Carbs}};
constexpr double Rounding = 0.1; ///< of two values with one decimal

constexpr const char* WithoutUnits[] = {"Vitamin A", "Vitamin C", "Calcium", "Iron"};

class Reader : PeerReading {
public:
    Reader(const PeerChoices& choices, Imported& into)
        : PeerReading(choices, into)
        , weightUnit_(choices, into) {}

    void ReadExercise(PeerTable& table) {
        if (table.Has("Kilograms"))
            weightUnit_.Infer(WeightUnit::Kilogram, table.File() + " counts in kilograms");
        if (table.Has("Pounds"))
            weightUnit_.Infer(WeightUnit::Pound, table.File() + " counts in pounds");
        PeerTables::LeaveOut(table, QStringLiteral("No exercise is kept here."), into_);
    }

    void ReadNutrition(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        for (const char* column : WithoutUnits)
            if (table.Has(column))
                into_.Remark(QLatin1String(column) +
                             " was left out: the file does not say whether it is in percent.");
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            if (table.Text("Meal") == u"Daily Total")
                into_.LeaveOut(table.Here(), QStringLiteral("It is the sum of the day's meals."));
            else
                TakeMeal(table, amounts);
        });
    }

    void ReadWeights(PeerTable& table) {
        const WeightUnit unit = weightUnit_.Of(table.File());
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            const auto weight = table.Number("Weight");
            if (!weight)
                return into_.LeaveOut(table.Here(), QStringLiteral("It gives no weight."));
            into_.weights.push_back({table.Here(), PeerValues::IsoDay(table.Text("Date")),
                                     PeerValues::Pounds(weight, unit)});
        });
    }

private:
    void TakeMeal(const PeerTable& table, const AmountColumns& amounts) {
        const QString meal = table.Text("Meal");
        const QString food = table.Text("Food");
        ImportedEntry entry{table.Here(), PeerValues::IsoDay(table.Text("Date")), meal, {}};
        entry.food.name = PeerValues::Name(food.isEmpty() ? "MyFitnessPal: " + meal : food);
        entry.food.serving = Serving(table);
        entry.food.amounts = WithoutImpossible(Known(amounts.Of(table)), entry.origin);
        into_.entries.push_back(entry);
    }

    static QString Serving(const PeerTable& table) {
        QString serving = QStringLiteral("meal");
        if (const QString time = table.Text("Time"); !time.isEmpty())
            serving += " at " + PeerValues::Time(time).toString(QStringLiteral("hh:mm"));
        if (const QString note = table.Text("Note"); !note.isEmpty())
            serving += " (" + note + u')';
        return PeerValues::Line(serving);
    }

    /// The file writes 0 for what a food's record does not say, too.
    NutrientAmounts Known(const NutrientAmounts& amounts) const {
        NutrientAmounts known;
        for (const Nutrient id : CanonicalOrder())
            if (amounts[id] && (*amounts[id] != 0 || choices_.zerosAreKnown))
                known.Set(id, *amounts[id]);
        if (known != amounts)
            into_.Remark(QStringLiteral("Amounts of 0 were left unknown: the file writes 0 for "
                                        "\"not given\", too. --zeros known takes them."));
        return known;
    }

    NutrientAmounts WithoutImpossible(const NutrientAmounts& amounts, const Origin& origin) const {
        NutrientAmounts possible;
        for (const Nutrient id : CanonicalOrder())
            if (const auto whole = WholeExceededBy(id, amounts))
                into_.NoteChange(origin, QLatin1String(Info(id).chartCaption) +
                                             " was left unknown: it is more than all the " +
                                             QLatin1String(Info(*whole).chartCaption) + u'.');
            else if (amounts[id])
                possible.Set(id, *amounts[id]);
        return possible;
    }

    static std::optional<Nutrient> WholeExceededBy(Nutrient id, const NutrientAmounts& amounts) {
        for (const auto& [part, whole] : Shares)
            if (part == id && amounts[part] && amounts[whole] &&
                *amounts[part] > *amounts[whole] + Rounding)
                return whole;
        return std::nullopt;
    }

    MissingWeightUnit weightUnit_;
};

constexpr TableKind<Reader> Kinds[] = {
    {{"Date", "Exercise", "Type"}, &Reader::ReadExercise},
    {{"Date", "Meal", "Calories"}, &Reader::ReadNutrition},
    {{"Date", "Weight"}, &Reader::ReadWeights},
};
} // namespace

void MyFitnessPal::Read(const std::vector<PeerFile>& files, const PeerChoices& choices,
                        Imported& into) {
    Reader reader(choices, into);
    const NumberFormat numbers{.thousands = u','};
    PeerTables(QStringLiteral("MyFitnessPal"), files, numbers, into)
        .Read(reader, std::span<const TableKind<Reader>>(Kinds));
}
