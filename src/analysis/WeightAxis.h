#pragma once

#include <QtGlobal>

#include <array>

/// The weight axis beside a line of weights: eight labels from the least weight upward, a whole
/// number of pounds apart. That number grows with the weights' range and with the days alike: a
/// long time makes a coarse axis even where the weight hardly changes. Lengths are twips.
class WeightAxis {
public:
    static constexpr int LabelCount = 8;
    static constexpr std::array<int, LabelCount> LabelTops{570,  1230, 1890, 2550,
                                                           3225, 3885, 4545, 5205};
    static constexpr int LabelHeight = 210;

    WeightAxis(qint32 min, qint32 max, int days);

    qint64 Label(int i) const { return labels_[size_t(i)]; } ///< from the top
    static int LabelMiddle(int i);
    /// A weight between two labels stands between them in proportion. One beyond them all is
    /// placed as if the axis had its full range on a quarter of the height.
    int Y(double weight) const;

private:
    qint32 max_;
    double scale_; ///< twips a pound beyond the labels
    std::array<qint64, LabelCount> labels_{};
};
