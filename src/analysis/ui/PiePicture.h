#pragma once

#include "analysis/charts/Pie.h"

#include <QWidget>

/// The control that shows a pie in the size of its picture. Assistive programs read the shares as
/// its description.
class PiePicture : public QWidget {
    Q_OBJECT

public:
    explicit PiePicture(PieForm form, QWidget* parent = nullptr);

    void Show(const EnergyShares& shares);
    void AddOverLay();
    Pie& pie() { return pie_; }

protected:
    bool event(QEvent*) override; ///< the tip of a sector
    void paintEvent(QPaintEvent*) override;

private:
    Pie pie_;
};
