#pragma once

#include "foods/ScaledFood.h"

#include <QString>

#include <optional>

/// A food that stands for a line of text. Without a quantity it is the right food for the line, but
/// its servings cannot express the line's amount.
struct FoodMatch {
    qint32 key = 0;
    QString name;
    QString serving = QStringLiteral("A"); ///< "A" or "B"
    std::optional<double> quantity = {};   ///< servings

    static bool Exists(qint32 key);
    ScaledFood Scaled() const { return ScaledFood::FromCatalogue(key, serving, *quantity); }

    /// The best food for an ingredient line, in the foods that are open. Which one is best: it has
    /// the words of the line, begins with them, and has few others.
    static std::optional<FoodMatch> Of(const QString& line);
    /// The best so many, the best first.
    static QList<FoodMatch> Best(const QString& line, qsizetype most);
};
