#pragma once

#include "toolkit/ucBox.h"

class LeadedLabel;
class QScrollArea;

/// The box with the tip of the day. A tip longer than the box can be scrolled.
class TipBox : public ucBox {
    Q_OBJECT

public:
    explicit TipBox(QWidget* parent = nullptr);

    void SetTip(const QString& tip);

private:
    void FitArea();
    void OfferScrolling();

    QScrollArea* area_;
    LeadedLabel* lblTip_;
};
