#pragma once

#include "foods/release/ReleaseTable.h"

#include <QString>

#include <span>

/// The source of a nutrient column of the catalogue.
struct FoodColumn {
    const char* name;
    int field;            ///< field of the abbreviated file, counted from 1 in its 51-field layout
    int fallback = 0;     ///< field to use if `field` is empty
    int decimalShift = 0; ///< power of ten between the release's unit and the column's
    const char* unit = nullptr; ///< the release's unit, where it is not the column's
};

/// A column for each nutrient, in the stored order.
std::span<const FoodColumn> FoodColumns();

/// The two layouts of the abbreviated file: later releases have two more fields for vitamin D,
/// directly after vitamin E.
inline constexpr int ShortLayout = 51;
inline constexpr int LongLayout = 53;

/// The number of a field in a layout, by its number in the 51-field layout.
int FieldInLayout(int field, int fieldCount);
/// A field of the abbreviated file by its number in the 51-field layout.
const QString& AbbrevField(const ReleaseTable::Record& record, int field);

/// The value of a column as decimal text in the column's unit; empty if unknown. Fails if the field
/// is not a decimal number.
QString ColumnValue(const ReleaseTable::Record& record, const FoodColumn& column);

/// Moves the decimal point of a decimal text: "1.0" by -3 is "0.0010". No digit is lost.
QString ShiftDecimal(const QString& number, int places);
