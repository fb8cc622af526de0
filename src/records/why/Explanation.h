#pragma once

#include "model/Nutrients.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Where the amounts of a food, a recipe or a log entry come from: in words, and as facts for
/// programs.
struct Explanation {
    struct Row {
        Nutrient nutrient;
        QString amount;      ///< "717 kcal"
        QString origin;      ///< "field 4"
        QStringList details; ///< for whoever asks for this nutrient alone
        QJsonObject facts;
    };

    QString title;
    QStringList about;
    QJsonObject facts;
    std::vector<Row> rows; ///< one a nutrient, in the order of PeriodOrder

    static QString Amount(std::optional<double> value, Nutrient nutrient); ///< "unknown" for none
    static QJsonValue Fact(std::optional<double> value);                   ///< null for none
    /// The nutrient and its unit.
    static QJsonObject FactsOf(Nutrient nutrient);
};
