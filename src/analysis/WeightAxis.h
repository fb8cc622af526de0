#pragma once

#include <QtGlobal>

#include <array>

/// The weight axis of the line chart: eight labels from the least weight upward, a whole number of
/// pounds apart. The step grows with the range of the weights and with the number of days: a long
/// period has a coarse axis even if the weight hardly changes. Lengths are twips.
class WeightAxis {
public:
    static constexpr int LabelCount = 8;
    static constexpr std::array<int, LabelCount> LabelTops{570,  1230, 1890, 2550,
                                                           3225, 3885, 4545, 5205};
    static constexpr int LabelHeight = 210;

    WeightAxis(qint32 min, qint32 max, int days);

    qint64 Label(int i) const { return labels_[size_t(i)]; } ///< i counts from the top
    static int LabelMiddle(int i);
    /// A weight between two labels stands between them in proportion. Beyond the labels the whole
    /// range of the weights counts as 1650 twips.
    int Y(double weight) const;

private:
    qint32 max_;
    double scale_; ///< twips to a pound, beyond the labels
    std::array<qint64, LabelCount> labels_{};
};
