#pragma once

#include "analysis/ui/ChartLabel.h"

/// A value behind a leader of points, which brings the values of all rows into one column. Where
/// the points of the font are too wide for the value, fewer of them are shown: no value is cut.
class LedLabel : public ChartLabel {
    Q_OBJECT

public:
    using ChartLabel::ChartLabel;

    void SetSpace(int pixels); ///< what leader and value may take together

protected:
    QString Shown() const override;

private:
    int space_ = QWIDGETSIZE_MAX;
};
