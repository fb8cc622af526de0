#pragma once

#include "catalogue/Measures.h"
#include "common/TsvTable.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A stock food of the catalogue. Numbers keep the decimal text of the release; an empty text is an
/// unknown value.
struct CatalogueFood {
    int id = 0;
    QString number; ///< the release's own
    QString name;
    QStringList nutrients; ///< in the order of FoodColumns
    Servings servings;
    bool plainFolate = false; ///< folate is the total, dietary equivalents are unknown

    bool HasValue() const; ///< at least one nutrient is known
};

/// The stock catalogue made from a release: foods in ascending order of the release's number, with
/// keys up to 23508. A food that is left out because it has no values still uses up a key, so that
/// no other food ever changes its key.
class Catalogue {
public:
    /// Reads ABBREV.txt, FOOD_DES.txt and WEIGHT.txt of the folder. Fails if a file is missing, has
    /// another layout, or lists a food twice.
    static Catalogue FromRelease(const QString& folder);

    const QList<CatalogueFood>& Foods() const { return foods_; }
    /// Numbers of foods that are left out because they have no full description.
    const QStringList& Unnamed() const { return unnamed_; }
    /// Foods that are left out because they have no value at all.
    const QList<CatalogueFood>& Valueless() const { return valueless_; }
    int ValuesRead() const { return valuesRead_; }
    int DescriptionsRead() const { return descriptionsRead_; }
    int WeightsRead() const { return weightsRead_; }

    TsvTable Table() const;

private:
    void AddFoods(const ReleaseTable& values, const ReleaseTable& descriptions,
                  const Measures& measures);
    void Number();
    void SetValuelessAside();

    QList<CatalogueFood> foods_;
    QStringList unnamed_;
    QList<CatalogueFood> valueless_;
    int valuesRead_ = 0;
    int descriptionsRead_ = 0;
    int weightsRead_ = 0;
};
