#pragma once

#include "catalogue/Measures.h"
#include "common/TsvTable.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A stock food as the catalogue holds it. Numbers are the release's own decimal text; an empty one
/// is unknown.
struct CatalogueFood {
    int id = 0;
    QString number; ///< the release's own
    QString name;
    QStringList nutrients; ///< in the order of FoodColumns
    Servings servings;
    bool plainFolate = false; ///< folate is the total, dietary equivalents are unknown

    bool HasValue() const; ///< at least one nutrient is known
};

/// The stock catalogue made from a release: the foods in ascending order of the release's own
/// number, with keys that end at 23508. A food that is left out for want of values keeps its key
/// to itself, so that no other food ever changes its own.
class Catalogue {
public:
    /// Reads ABBREV.txt, FOOD_DES.txt and WEIGHT.txt of the folder. Fails where one is missing,
    /// does not keep the layout, or holds a food twice.
    static Catalogue FromRelease(const QString& folder);

    const QList<CatalogueFood>& Foods() const { return foods_; }
    /// Numbers of foods with values and no full description, which the catalogue leaves out.
    const QStringList& Unnamed() const { return unnamed_; }
    /// Foods of which the release knows no value at all, which the catalogue leaves out.
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
