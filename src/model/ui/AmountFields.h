#pragma once

#include "model/NutrientAmounts.h"

class QLineEdit;

/// The fields of a page that show and take the 31 amounts, a field each. The page makes, places and
/// owns them.
class AmountFields {
public:
    QLineEdit*& operator[](Nutrient id) { return fields_[static_cast<size_t>(id)]; }

    /// A missing amount gives an empty field. A long number shows its beginning.
    void Show(const NutrientAmounts& amounts);
    NutrientAmounts Entered() const; ///< the number at the beginning of each text, else 0

private:
    std::array<QLineEdit*, NutrientCount> fields_{};
};
