#pragma once

#include "model/ui/AmountFields.h"

#include <QWidget>

#include <span>

class QLineEdit;

/// The Advanced page of the profile screen: a field for each daily target, in three groups.
class ProfileTargets : public QWidget {
    Q_OBJECT

public:
    explicit ProfileTargets(QWidget* parent = nullptr);

    void Show(const NutrientAmounts& targets) { fields_.Show(targets); }
    NutrientAmounts Entered() const { return fields_.Entered(); }

private:
    QWidget* MakeGroup(const char* caption, std::span<const Nutrient> nutrients);
    QLineEdit* MakeField(QWidget* box, const NutrientInfo& nutrient);

    AmountFields fields_;
};
