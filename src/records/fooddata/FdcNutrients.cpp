#include "records/fooddata/FdcNutrients.h"

#include "records/fooddata/FdcTable.h"
#include "records/fooddata/FoodTally.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cmath>

namespace {
using enum Nutrient;

struct Figure {
    quint32 key;
    quint32 number; ///< where it is whole; else 0
    const char* unit;
    Nutrient nutrient;
    double divisor = 1; ///< from the figure's unit to the column's
    const char* note = nullptr;
};

constexpr double KilojoulesPerKilocalorie = 4.184;
constexpr double MicrogramsPerMilligram = 1000;
constexpr auto GeneralFactors = "energy was calculated from 4, 9 and 4 kcal for a gram";
constexpr auto SpecificFactors = "energy was calculated with the food's own factors";
constexpr auto FromKilojoules = "energy was converted from kJ";
constexpr auto LabelFat = "fat is that of the label";
constexpr auto SummedCarbs = "carbohydrates are summed up, not the difference";
constexpr auto OtherFiber = "fiber was measured by another method";
constexpr auto PlainFolate = "folate is the total, not in dietary equivalents";

/// Figures of one nutrient stand together, the preferred one first. The last ones are the parts of
/// vitamin A: an IU is so much of each.
constexpr Figure Table[] = {
    {1008, 208, "KCAL", Calories},
    {2048, 958, "KCAL", Calories, 1, SpecificFactors},
    {2047, 957, "KCAL", Calories, 1, GeneralFactors},
    {1062, 268, "KJ", Calories, KilojoulesPerKilocalorie, FromKilojoules},
    {1004, 204, "G", TotalFat},
    {1085, 298, "G", TotalFat, 1, LabelFat},
    {1258, 606, "G", SatFat},
    {1292, 645, "G", MonoFat},
    {1293, 646, "G", PolyFat},
    {1253, 601, "MG", Cholesterol},
    {1093, 307, "MG", Sodium},
    {1005, 205, "G", Carbs},
    {1050, 0, "G", Carbs, 1, SummedCarbs},
    {1079, 291, "G", Fiber},
    {2033, 293, "G", Fiber, 1, OtherFiber},
    {1003, 203, "G", Protein},
    {1087, 301, "MG", Calcium},
    {1098, 312, "MG", Copper},
    {1190, 435, "UG", Folate},
    {1177, 417, "UG", Folate, 1, PlainFolate},
    {1089, 303, "MG", Iron},
    {1090, 304, "MG", Magnesium},
    {1101, 315, "MG", Manganese},
    {1167, 406, "MG", Niacin},
    {1170, 410, "MG", Panto},
    {1091, 305, "MG", Phosphorus},
    {1092, 306, "MG", Potassium},
    {1166, 405, "MG", Riboflavin},
    {1103, 317, "UG", Selenium, MicrogramsPerMilligram},
    {1165, 404, "MG", Thiamin},
    {1104, 318, "IU", VitaminA},
    {1178, 418, "UG", VitaminB12},
    {1175, 415, "MG", VitaminB6},
    {1162, 401, "MG", VitaminC},
    {1109, 323, "MG", VitaminE},
    {1095, 309, "MG", Zinc},
    {1007, 207, "G", Ash},
    {1051, 255, "G", Water},
    {1105, 319, "UG", VitaminA, 0.3},
    {1107, 321, "UG", VitaminA, 0.6},
    {1108, 322, "UG", VitaminA, 1.2},
    {1120, 334, "UG", VitaminA, 1.2},
};
constexpr quint32 RetinolKey = 1105;
constexpr int FirstPart =
    std::ranges::find(Table, RetinolKey, &Figure::key) - std::ranges::begin(Table);
constexpr int Retinol = FirstPart;
constexpr int BetaCarotene = FirstPart + 1;
/// Carbohydrates by summation; 0 means that they cannot be summed.
constexpr quint32 CarbsBySummation = 1050;
static_assert(std::size(Table) == FdcNutrients::SlotCount);

using Figures = FdcNutrients::Figures;

bool IsKnown(const Figure& figure, double value) {
    return !std::isnan(value) && !(figure.key == CarbsBySummation && value == 0);
}

/// Without retinol and carotene the sum would be a guess.
std::optional<double> VitaminAFromParts(Figures figures) {
    if (std::isnan(figures[Retinol]) || std::isnan(figures[BetaCarotene]))
        return std::nullopt;
    double units = 0;
    for (size_t slot = FirstPart; slot < std::size(Table); ++slot)
        units += std::isnan(figures[slot]) ? 0 : figures[slot] / Table[slot].divisor;
    return units;
}

/// A difference of measured figures can fall just below 0.
double NotBelowZero(const Figure& figure, double value, FoodTally& tally) {
    if (figure.nutrient != Carbs || value >= 0)
        return value;
    tally.Note(QStringLiteral("carbohydrates below 0 became 0"));
    return 0;
}
} // namespace

int FdcNutrients::SlotOf(quint32 key) {
    static constexpr quint32 firstKey = 1000;
    for (int slot = 0; slot < FdcNutrients::SlotCount; ++slot)
        if (key == (key < firstKey ? Table[slot].number : Table[slot].key) && key != 0)
            return slot;
    return -1;
}

void FdcNutrients::RequireUnits(const QString& folder) {
    enum { Key, Unit };
    FdcTable nutrients(folder, QStringLiteral("nutrient.csv"),
                       {QStringLiteral("id"), QStringLiteral("unit_name")});
    while (nutrients.Next()) {
        const int slot = SlotOf(nutrients.Key(Key));
        if (slot >= 0 &&
            nutrients.Text(Unit).compare(QLatin1String(Table[slot].unit), Qt::CaseInsensitive) != 0)
            throw RuntimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("nutrient.csv: nutrient %1 is in %2, not in %3. "
                                              "Nothing was read.")
                                   .arg(nutrients.Key(Key))
                                   .arg(nutrients.Text(Unit), QLatin1String(Table[slot].unit)));
    }
}

NutrientAmounts FdcNutrients::Amounts(Figures figures, FoodTally& tally) {
    NutrientAmounts amounts;
    for (int slot = 0; slot < FirstPart; ++slot) {
        const Figure& figure = Table[slot];
        const double value = figures[static_cast<size_t>(slot)];
        if (amounts[figure.nutrient] || !IsKnown(figure, value))
            continue;
        amounts.Set(figure.nutrient, NotBelowZero(figure, value, tally) / figure.divisor);
        if (figure.note)
            tally.Note(QLatin1String(figure.note));
    }
    if (const auto units = VitaminAFromParts(figures); units && !amounts[VitaminA]) {
        amounts.Set(VitaminA, *units);
        tally.Note(QStringLiteral("vitamin A was calculated from retinol and carotenes"));
    }
    return amounts;
}
