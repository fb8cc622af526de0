#include "foods/release/FoodColumns.h"

#include "model/Nutrients.h"
#include "runtime/RuntimeError.h"

#include <QRegularExpression>

namespace {

constexpr int VitaminE = 41;
constexpr int MicrogramsToMilligrams = -3;

constexpr FoodColumn Columns[] = {
    {"VitaminC", 21},
    {"VitaminE", VitaminE},
    {"VitaminB12", 32},
    {"VitaminB6", 26},
    {"VitaminA", 33},
    {"SatFat", 43},
    {"Potassium", 15},
    {"PolyFat", 45},
    {"MonoFat", 44},
    {"Folate", 30, 27},
    {"water", 3},
    {"Calories", 4},
    {"protein", 5},
    {"TotalFat", 6},
    {"carbs", 8},
    {"fiber", 9},
    {"ASH", 7},
    {"Calcium", 11},
    {"Phosphorus", 14},
    {"Iron", 12},
    {"sodium", 16},
    {"Magnesium", 13},
    {"Panto", 25},
    {"Zinc", 17},
    {"Copper", 18},
    {"Manganese", 19},
    {"Selenium", 20, 0, MicrogramsToMilligrams, "mcg"},
    {"Thiamin", 22},
    {"Riboflavin", 23},
    {"Niacin", 24},
    {"Cholesterol", 46},
};
static_assert(std::size(Columns) == NutrientCount, "the catalogue lacks a nutrient");

bool IsDecimal(const QString& text) {
    static const QRegularExpression decimal(QStringLiteral("^(\\d+\\.?\\d*|\\.\\d+)$"));
    return decimal.match(text).hasMatch();
}

} // namespace

std::span<const FoodColumn> FoodColumns() {
    return Columns;
}

int FieldInLayout(int field, int fieldCount) {
    return field > VitaminE ? field + fieldCount - ShortLayout : field;
}

const QString& AbbrevField(const ReleaseTable::Record& record, int field) {
    return record.Field(FieldInLayout(field, int(record.fields.size())));
}

QString ColumnValue(const ReleaseTable::Record& record, const FoodColumn& column) {
    QString value = AbbrevField(record, column.field);
    if (value.isEmpty() && column.fallback)
        value = AbbrevField(record, column.fallback);
    if (!value.isEmpty() && !IsDecimal(value))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"line " + QString::number(record.line) +
                                                          u": " + QLatin1String(column.name) +
                                                          u" is \"" + value + u'"');
    return value.isEmpty() || !column.decimalShift ? value
                                                   : ShiftDecimal(value, column.decimalShift);
}

QString ShiftDecimal(const QString& number, int places) {
    const qsizetype point = number.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : number.size() - point - 1;
    QString digits = number;
    digits.remove(u'.');
    const qsizetype wanted = decimals - places;
    if (wanted <= 0)
        return digits + QString(-wanted, u'0');
    digits = digits.rightJustified(wanted + 1, u'0');
    digits.insert(digits.size() - wanted, u'.');
    while (digits.size() > 1 && digits[0] == u'0' && digits[1] != u'.')
        digits.remove(0, 1);
    return digits;
}
