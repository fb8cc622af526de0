#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/Dialog.h"

/// The nutrition facts of one serving line at the quantity typed: it only shows, the amounts arrive
/// scaled.
class frmNutInfo : public Dialog {
    Q_OBJECT

public:
    explicit frmNutInfo(QWidget* owner = nullptr);

    /// Fills the labels and shows the panel modally. Where filling fails the panel is not shown.
    void showFood(const ScaledFood& item);
};
