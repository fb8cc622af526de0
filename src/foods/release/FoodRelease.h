#pragma once

#include "foods/release/Measures.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A food of a release. Numbers keep the decimal text of the release; an empty text is an unknown
/// value.
struct ReleaseFood {
    QString number; ///< the release's own
    QString group;  ///< the number of its food group
    QString name;
    QStringList nutrients; ///< in the order of FoodColumns, in 100 grams
    Servings servings;
    bool plainFolate = false; ///< folate is the total, dietary equivalents are unknown
    int valuesLine = 0;       ///< of ABBREV.txt
    int nameLine = 0;         ///< of FOOD_DES.txt

    bool HasValue() const; ///< at least one nutrient is known
};

/// The foods of a release of the USDA National Nutrient Database for Standard Reference, in
/// ascending order of the release's number.
class FoodRelease {
public:
    /// Whether a folder holds the files of a release.
    static bool IsIn(const QString& folder);
    /// Reads ABBREV.txt, FOOD_DES.txt and WEIGHT.txt of the folder. Fails if a file is missing, has
    /// another layout, or lists a food twice.
    static FoodRelease Read(const QString& folder);

    static constexpr const char* ValuesFile = "ABBREV.txt";
    static constexpr const char* NamesFile = "FOOD_DES.txt";
    static constexpr const char* WeightsFile = "WEIGHT.txt";

    const QList<ReleaseFood>& Foods() const { return foods_; }
    /// Numbers of foods that are left out because they have no full description.
    const QStringList& Unnamed() const { return unnamed_; }
    int FieldCount() const { return fieldCount_; } ///< of ABBREV.txt
    int ValuesRead() const { return valuesRead_; }
    int DescriptionsRead() const { return descriptionsRead_; }
    int WeightsRead() const { return weightsRead_; }

private:
    void AddFoods(const ReleaseTable& values, const ReleaseTable& descriptions,
                  const Measures& measures);
    void Sort();

    QList<ReleaseFood> foods_;
    QStringList unnamed_;
    int fieldCount_ = 0;
    int valuesRead_ = 0;
    int descriptionsRead_ = 0;
    int weightsRead_ = 0;
};
