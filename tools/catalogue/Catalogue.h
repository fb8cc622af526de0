#pragma once

#include "foods/delivery/TsvTable.h"
#include "foods/release/FoodRelease.h"

/// A stock food of the catalogue.
struct CatalogueRow : ReleaseFood {
    int id = 0;
};

/// The stock catalogue made from a release: foods in ascending order of the release's number, with
/// keys up to 23508. A food that is left out because it has no values still uses up a key, so that
/// no other food ever changes its key.
class Catalogue {
public:
    /// Fails if the release cannot be read, or does not fit the keys of stock foods.
    static Catalogue FromRelease(const QString& folder);

    const FoodRelease& Release() const { return release_; }
    const QList<CatalogueRow>& Foods() const { return foods_; }
    /// Foods that are left out because they have no value at all.
    const QList<CatalogueRow>& Valueless() const { return valueless_; }

    TsvTable Table() const;

private:
    explicit Catalogue(FoodRelease release);
    void Number();
    void SetValuelessAside();

    FoodRelease release_;
    QList<CatalogueRow> foods_;
    QList<CatalogueRow> valueless_;
};
