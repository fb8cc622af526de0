#pragma once

#include "analysis/ui/PiePicture.h"

#include <array>
#include <optional>

class Nuts;
class ucAALBL;

/// A pie with its legend below, both in the middle: the swatches Image1 to Image3 in the sectors'
/// shown colours before the labels aafat, aaprotein and aacarbs.
class PieChart : public QWidget {
    Q_OBJECT

public:
    explicit PieChart(PieForm form, QWidget* parent = nullptr);

    void DrawPie(double fat, double protein, double carbs);
    void ShowNoData();
    /// The pie of those amounts; that without data where there are none or less than a kilocalorie.
    void ShowEnergy(const std::optional<Nuts>& amounts);
    void AddOverLay() { picture_->AddOverLay(); }
    PiePicture* picPIE() const { return picture_; }
    const std::array<ucAALBL*, 3>& Labels() const { return labels_; }

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void AddSwatches();
    void AddLabels();
    void ShowCaptions();
    QRect SwatchPlace(size_t i) const;

    PiePicture* picture_;
    std::array<QWidget*, 3> swatches_{};
    std::array<ucAALBL*, 3> labels_{};
};
