#pragma once

#include "analysis/PiePicture.h"

#include <array>

class ucAALBL;

/// A pie with its legend below, both in the middle: a swatch in the sector's shown colour before
/// each of the labels aafat, aaprotein and aacarbs.
class PieChart : public QWidget {
    Q_OBJECT

public:
    explicit PieChart(PieForm form, QWidget* parent = nullptr);

    void DrawPie(double fat, double protein, double carbs);
    void ShowNoData();
    void AddOverLay() { picture_->AddOverLay(); }
    PiePicture* picPIE() const { return picture_; }
    const std::array<ucAALBL*, 3>& Labels() const { return labels_; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void AddLabels();
    void ShowCaptions();
    QRect Swatch(size_t i) const;

    PiePicture* picture_;
    std::array<ucAALBL*, 3> labels_{};
};
