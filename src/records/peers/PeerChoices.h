#pragma once

#include "records/peers/Units.h"

#include <QHash>
#include <QString>

/// What a person decides where the files of another program leave it open.
struct PeerChoices {
    enum class DateOrder { MonthFirst, DayFirst };
    enum class Micronutrients { Unknown, Grams, AsNamed };

    std::optional<WeightUnit> weightUnit;
    std::optional<DateOrder> dateOrder; ///< of dates with slashes where the layout has none
    VitaminASource vitaminA = VitaminASource::Unknown;
    bool zerosAreKnown = false; ///< where a file writes 0 for "not given", too
    /// What the minerals and vitamins of older foods from Open Food Facts are in.
    Micronutrients oldMicronutrients = Micronutrients::Unknown;
    QHash<QString, int> meals; ///< the meal for a name in the file, by CsvHeader::Key
};
