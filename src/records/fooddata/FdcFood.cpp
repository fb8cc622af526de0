#include "records/fooddata/FdcFood.h"

#include <algorithm>

FdcFood* FindFood(FdcFoods& foods, quint32 key) {
    const auto found = std::ranges::lower_bound(foods, key, {}, &FdcFood::key);
    return found != foods.end() && found->key == key ? &*found : nullptr;
}
