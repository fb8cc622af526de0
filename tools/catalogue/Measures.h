#pragma once

#include "catalogue/ReleaseTable.h"

#include <QHash>
#include <QString>

/// A household measure of a food: its text and its weight in grams, as decimal text.
struct Measure {
    QString text;
    QString grams;
};

/// The two servings of a food. A food with one measure gets "100 grams" as its second, a food with
/// none gets it as its first and has no second (both texts empty).
struct Servings {
    Measure a;
    Measure b;
    int ownMeasures = 0;     ///< complete measures of the abbreviated file
    int filledMeasures = 0;  ///< taken from the file of weights
    bool secondOnly = false; ///< the abbreviated file has the second measure without the first
};

/// Chooses the servings: the measures of the abbreviated file in their order, and where it has
/// fewer than two, those of the file of weights in its sequence that are not among them yet.
class Measures {
public:
    explicit Measures(const ReleaseTable& weights);
    Servings Choose(const QString& number, const ReleaseTable::Record& abbreviated) const;

private:
    struct Weight {
        int sequence;
        Measure measure;
    };
    QHash<QString, QList<Weight>> weights_;
};
