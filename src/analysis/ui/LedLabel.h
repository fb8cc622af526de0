#pragma once

#include "analysis/ui/ChartLabel.h"

/// A value behind a leader of points, which puts the values of all rows into one column. If the
/// points of the font are too wide, fewer of them are shown, so that no value is cut.
class LedLabel : public ChartLabel {
    Q_OBJECT

public:
    using ChartLabel::ChartLabel;

    void SetSpace(int pixels); ///< for leader and value together

protected:
    QString Shown() const override;

private:
    int space_ = QWIDGETSIZE_MAX;
};
