#include "model/ui/AmountFields.h"

#include "runtime/Convert.h"
#include "runtime/Val.h"

#include <QLineEdit>

void AmountFields::Show(const NutrientAmounts& amounts) {
    for (const NutrientInfo& nutrient : Nutrients()) {
        const std::optional<double> amount = amounts[nutrient.id];
        QLineEdit* field = (*this)[nutrient.id];
        field->setText(amount ? DecimalText(*amount) : QString());
        field->setCursorPosition(0);
    }
}

NutrientAmounts AmountFields::Entered() const {
    NutrientAmounts amounts;
    for (const NutrientInfo& nutrient : Nutrients())
        amounts.Set(nutrient.id, Val(fields_[static_cast<size_t>(nutrient.id)]->text()));
    return amounts;
}
