#include "records/peers/Cronometer.h"

#include "records/peers/PeerReading.h"
#include "records/peers/PeerTables.h"
#include "records/peers/PeerValues.h"

#include <QHash>

#include <cmath>

namespace {
using enum Nutrient;

constexpr AmountColumn Amounts[] = {
    {"Energy (kcal)", Calories, Unit::Kilocalorie},
    {"Fat (g)", TotalFat, Unit::Gram},
    {"Saturated (g)", SatFat, Unit::Gram},
    {"Monounsaturated (g)", MonoFat, Unit::Gram},
    {"Polyunsaturated (g)", PolyFat, Unit::Gram},
    {"Cholesterol (mg)", Cholesterol, Unit::Milligram},
    {"Sodium (mg)", Sodium, Unit::Milligram},
    {"Carbs (g)", Carbs, Unit::Gram},
    {"Fiber (g)", Fiber, Unit::Gram},
    {"Protein (g)", Protein, Unit::Gram},
    {"Calcium (mg)", Calcium, Unit::Milligram},
    {"Copper (mg)", Copper, Unit::Milligram},
    {"Folate (\u00b5g)", Folate, Unit::Microgram},
    {"Iron (mg)", Iron, Unit::Milligram},
    {"Magnesium (mg)", Magnesium, Unit::Milligram},
    {"Manganese (mg)", Manganese, Unit::Milligram},
    {"B3 (Niacin) (mg)", Niacin, Unit::Milligram},
    {"B5 (Pantothenic Acid) (mg)", Panto, Unit::Milligram},
    {"Phosphorus (mg)", Phosphorus, Unit::Milligram},
    {"Potassium (mg)", Potassium, Unit::Milligram},
    {"B2 (Riboflavin) (mg)", Riboflavin, Unit::Milligram},
    {"Selenium (\u00b5g)", Selenium, Unit::Microgram},
    {"B1 (Thiamine) (mg)", Thiamin, Unit::Milligram},
    {"Vitamin A (IU)", VitaminA, Unit::InternationalUnit},
    {"Vitamin A (\u00b5g)", VitaminA, Unit::RetinolEquivalent},
    {"B6 (Pyridoxine) (mg)", VitaminB6, Unit::Milligram},
    {"B12 (Cobalamin) (\u00b5g)", VitaminB12, Unit::Microgram},
    {"Vitamin C (mg)", VitaminC, Unit::Milligram},
    {"Vitamin E (mg)", VitaminE, Unit::Milligram},
    {"Zinc (mg)", Zinc, Unit::Milligram},
    {"Ash (g)", Ash, Unit::Gram},
    {"Water (g)", Water, Unit::Gram},
};

class Reader : PeerReading {
public:
    using PeerReading::PeerReading;

    void ReadServings(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        servingsHaveAmounts_ = servingsHaveAmounts_ || !amounts.IsEmpty();
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            TakeServing(table, amounts);
        });
    }

    /// A day is not counted twice: its servings go before its sums.
    void ReadDays(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            const Sums sums{Day(table, "Date"), table.Text("Group"), amounts.Of(table)};
            if (sums.amounts[Calories].value_or(0) == 0)
                into_.LeaveOut(table.Here(), QStringLiteral("Nothing was logged on this day."));
            else if (servingsHaveAmounts_)
                CompareDay(table, sums);
            else
                TakeDay(table, sums);
        });
    }

    void ReadBiometrics(PeerTable& table) {
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            const QString metric = table.Text("Metric");
            if (metric == u"Weight" || metric.startsWith(u"Weight ("))
                TakeWeight(table);
            else
                into_.LeaveOut(table.Here(), "No " + metric + " is kept here.");
        });
    }

    void ReadFoods(PeerTable& table) {
        const AmountColumns amounts(table, Amounts, rules_);
        table.ForEachRow(into_, [&] {
            table.RequireWholeRow();
            into_.foods.push_back({table.Here(),
                                   {PeerValues::Name(table.Text("Food Name")),
                                    PeerValues::Line(table.Text("Amount")), amounts.Of(table)}});
        });
    }

    void LeaveOut(PeerTable& table) {
        PeerTables::LeaveOut(table, QStringLiteral("Only food and weight are kept here."), into_);
    }

private:
    struct Sums {
        QDate day;
        QString group; ///< empty for the whole day
        NutrientAmounts amounts;
    };
    struct Energy {
        double kcal = 0;
        int servings = 0;
    };
    static constexpr double Rounding = 0.01; ///< of each row in a sum
    static constexpr double Tolerance = 0.5; ///< kcal

    QDate Day(const PeerTable& table, const char* column) const {
        return PeerValues::Day(table.Text(column), choices_.dateOrder);
    }

    void TakeServing(const PeerTable& table, const AmountColumns& amounts) {
        ImportedEntry entry{table.Here(), Day(table, "Day"), table.Text("Group"), {}};
        PeerValues::Time(table.Text("Time"));
        entry.food.name = PeerValues::Name(table.Text("Food Name"));
        entry.food.amounts = amounts.Of(table);
        PeerValues::SetPortion(entry.food, table.Text("Amount"));
        Count(entry, {});
        Count(entry, entry.meal);
        into_.entries.push_back(entry);
    }

    void Count(const ImportedEntry& entry, const QString& group) {
        Energy& energy = energy_[{entry.day, group}];
        energy.kcal += entry.food.amounts[Calories].value_or(0);
        ++energy.servings;
    }

    /// The word for the sum of all groups may be in any language: it names no group of a serving.
    Energy ServingsOf(const Sums& sums) const {
        const auto group = energy_.constFind({sums.day, sums.group});
        return group != energy_.cend() ? *group : energy_.value({sums.day, {}});
    }

    void CompareDay(const PeerTable& table, const Sums& sums) {
        const Energy servings = ServingsOf(sums);
        const double stated = *sums.amounts[Calories];
        if (std::abs(servings.kcal - stated) <= Tolerance + Rounding * servings.servings)
            return into_.LeaveOut(table.Here(),
                                  QStringLiteral("The servings are taken, which add up to it."));
        into_.Refuse(table.Here(), QStringLiteral("The servings are taken, but they add up to %1 "
                                                  "kcal. Some may be missing in the file.")
                                       .arg(servings.kcal, 0, 'f', 2));
    }

    void TakeDay(const PeerTable& table, const Sums& sums) {
        Energy& groups = energy_[{sums.day, QStringLiteral("Total")}];
        const double kcal = *sums.amounts[Calories];
        if (groups.servings > 0 && std::abs(groups.kcal - kcal) <= Rounding * (groups.servings + 1))
            return into_.LeaveOut(table.Here(),
                                  QStringLiteral("It is the sum of the day's other rows."));
        groups.kcal += kcal;
        ++groups.servings;
        const QString name = sums.group.isEmpty() ? QStringLiteral("whole day") : sums.group;
        into_.entries.push_back(
            {table.Here(),
             sums.day,
             sums.group,
             {PeerValues::Line("Cronometer: " + name), QStringLiteral("total"), 1, sums.amounts}});
    }

    void TakeWeight(const PeerTable& table) {
        const auto unit = Units::WeightNamed(table.Text("Unit"));
        if (!unit)
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("The weight is neither in kg nor in lbs."));
        const QTime time = PeerValues::Time(table.Text("Time"));
        into_.weights.push_back({table.Here(), Day(table, "Day"),
                                 PeerValues::Pounds(table.Number("Amount"), *unit),
                                 time.isValid() ? time.msecsSinceStartOfDay() : 0});
    }

    bool servingsHaveAmounts_ = false;
    QHash<std::pair<QDate, QString>, Energy> energy_;
};

constexpr TableKind<Reader> Kinds[] = {
    {{"Day", "Food Name", "Amount"}, &Reader::ReadServings},
    {{"Date", "Energy (kcal)"}, &Reader::ReadDays},
    {{"Day", "Metric", "Unit", "Amount"}, &Reader::ReadBiometrics},
    {{"Food ID", "Food Name", "Amount", "Energy (kcal)"}, &Reader::ReadFoods},
    {{"Day", "Exercise", "Minutes"}, &Reader::LeaveOut},
    {{"Day", "Note"}, &Reader::LeaveOut},
    {{"Name", "Start", "End", "Recurrence"}, &Reader::LeaveOut},
};
} // namespace

void Cronometer::Read(const std::vector<PeerFile>& files, const PeerChoices& choices,
                      Imported& into) {
    Reader reader(choices, into);
    PeerTables(QStringLiteral("Cronometer"), files, {}, into)
        .Read(reader, std::span<const TableKind<Reader>>(Kinds));
}
