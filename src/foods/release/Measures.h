#pragma once

#include "foods/release/ReleaseTable.h"

#include <QHash>
#include <QString>

/// A household measure of a food: its text and its weight in grams, as decimal text.
struct Measure {
    QString text;
    QString grams;
    int field = 0; ///< of the abbreviated file, where it gives the grams
    int line = 0;  ///< of the file of weights, where it gives the measure
};

/// The two servings of a food. A food with one measure gets "100 grams" as its second serving. A
/// food without measures gets it as its first; its second has two empty texts.
struct Servings {
    Measure a;
    Measure b;
    int ownMeasures = 0;     ///< from the abbreviated file, with text and weight
    int filledMeasures = 0;  ///< taken from the file of weights
    bool secondOnly = false; ///< the abbreviated file has the second measure without the first

    bool OnlyHundredGrams() const { return ownMeasures + filledMeasures == 0; }
};

/// Chooses the servings: the measures of the abbreviated file in their order. If there are fewer
/// than two, new ones from the file of weights follow, in its order.
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
