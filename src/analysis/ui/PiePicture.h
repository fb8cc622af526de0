#pragma once

#include "analysis/ui/Pie.h"

#include <QWidget>

/// The control that shows a pie, at the size of the pie's picture. It paints no earlier than it is
/// seen, and says the shares to assistive programs.
class PiePicture : public QWidget {
    Q_OBJECT

public:
    explicit PiePicture(PieForm form, QWidget* parent = nullptr);

    void DrawPie(double fat, double protein, double carbs);
    void ShowNoData();
    void AddOverLay();
    Pie& pie() { return pie_; }

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void Refresh();

    Pie pie_;
};
