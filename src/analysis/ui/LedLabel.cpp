#include "analysis/ui/LedLabel.h"

#include "analysis/charts/Leader.h"

void LedLabel::SetSpace(int pixels) {
    if (space_ == pixels)
        return;
    space_ = pixels;
    ShowAnew();
}

QString LedLabel::Shown() const {
    return Leader::Fitting(Caption(), font(), space_);
}
