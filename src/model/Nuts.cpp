#include "model/Nuts.h"

#include "runtime/Round.h"

void Nuts::Set(Nutrient id, double value) {
    values_[static_cast<size_t>(id)] = Info(id).whole ? Round(value) : value;
}
