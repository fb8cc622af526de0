#pragma once

#include "foods/Food.h"

#include <QStringList>

#include <vector>

/// The entries of one search, in the order of adding. Positions count from 1. A search makes a new
/// one and drops the old.
class FoodList {
public:
    /// Adds an entry at the end; a key that is not empty and there already fails (457). The
    /// reference holds until the next Add or Remove.
    Food& Add(const QString& FoodName, bool isRecipe, qint32 ID, const QVariant& ServA,
              const QVariant& ServB, const QString& sKey = {});
    const Food& Item(int index) const; ///< a position that is not there fails (9)
    int Count() const { return static_cast<int>(foods_.size()); }
    void Remove(int index);

    auto begin() const { return foods_.begin(); }
    auto end() const { return foods_.end(); }

private:
    size_t PlaceOf(int index) const;

    std::vector<Food> foods_;
    QStringList keys_;
};
