#include "foods/FoodList.h"

#include "runtime/RuntimeError.h"

Food& FoodList::Add(const QString& FoodName, bool isRecipe, qint32 ID, const QVariant& ServA,
                    const QVariant& ServB, const QString& sKey) {
    if (!sKey.isEmpty() && keys_.contains(sKey, Qt::CaseInsensitive))
        throw RuntimeError(ErrorNumber::KeyInUse,
                           u"The search result holds an entry of the key '" + sKey + u"' already.");
    keys_ << sKey;
    return foods_.emplace_back(Food{FoodName, isRecipe, ID, ServA, ServB});
}

const Food& FoodList::Item(int index) const {
    return foods_[PlaceOf(index)];
}

void FoodList::Remove(int index) {
    const size_t place = PlaceOf(index);
    foods_.erase(foods_.begin() + static_cast<std::ptrdiff_t>(place));
    keys_.removeAt(static_cast<qsizetype>(place));
}

size_t FoodList::PlaceOf(int index) const {
    if (index < 1 || index > Count())
        throw RuntimeError(ErrorNumber::NoSuchPosition,
                           QStringLiteral("The search result has no entry %1.").arg(index));
    return static_cast<size_t>(index - 1);
}
