#pragma once

#include "analysis/ui/PiePicture.h"

#include <array>

class ucAALBL;

/// A pie with its legend below, both centred. The swatches Image1 to Image3 have the colours of the
/// sectors and stand before the labels aafat, aaprotein and aacarbs.
class PieChart : public QWidget {
    Q_OBJECT

public:
    explicit PieChart(PieForm form, QWidget* parent = nullptr);

    void Show(const EnergyShares& shares);
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
