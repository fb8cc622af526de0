#pragma once

#include "model/Nutrients.h"

#include <QWidget>

#include <array>

class QLineEdit;
class Recordset;

/// The Advanced page of the profile screen: the 31 daily targets, a field each, in three groups.
class ProfileTargets : public QWidget {
    Q_OBJECT

public:
    explicit ProfileTargets(QWidget* parent = nullptr);

    void Fill(const Recordset& row);

    /// Writes each field's number without its sign; what is no number is written as 0.
    void Write(Recordset& row) const;

private:
    QWidget* MakeGroup(const char* caption, std::span<const Nutrient> nutrients);
    QLineEdit* MakeField(QWidget* box, const NutrientInfo& nutrient);

    std::array<QLineEdit*, NutrientCount> fields_{};
};
