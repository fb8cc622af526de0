#pragma once

#include "foods/Food.h"

#include <QStringList>

#include <vector>

/// The entries of one search, in the order of adding. Positions count from 1.
class FoodList {
public:
    /// Adds an entry at the end. A key may be empty; one that is used already fails (457). The
    /// reference is valid until the next Add or Remove.
    Food& Add(const QString& FoodName, bool isRecipe, qint32 ID, const QVariant& ServA,
              const QVariant& ServB, const QString& sKey = {});
    const Food& Item(int index) const; ///< a wrong position fails (9)
    int Count() const { return static_cast<int>(foods_.size()); }
    void Remove(int index);

    auto begin() const { return foods_.begin(); }
    auto end() const { return foods_.end(); }

private:
    size_t PlaceOf(int index) const;

    std::vector<Food> foods_;
    QStringList keys_;
};
