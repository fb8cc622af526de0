#pragma once

#include <QDate>

#include <vector>

/// The date axis of the line chart, from the first day to the last: up to five labels, and the
/// place of each day. From four days on, the labels are a whole number of days apart, so the fifth
/// can lie past the last day. Lengths are twips.
class DateAxis {
public:
    static constexpr int Left = 945;
    static constexpr int Width = 8200;
    static constexpr int LabelCount = 5;
    static constexpr int LabelWidth = 990;

    struct Label {
        int index; ///< which of the five
        QDate day;
        double left;
        bool operator==(const Label&) const = default;
    };

    DateAxis(QDate first, QDate last);

    int Days() const { return days_; } ///< from the first day to the last
    const std::vector<Label>& Labels() const { return labels_; }
    int TwipsPerDay() const { return twipsPerDay_; } ///< 0 for a single day
    int X(QDate day, double firstLabelMiddle) const;

private:
    QDate first_;
    int days_;
    std::vector<Label> labels_;
    int twipsPerDay_ = 0;
};
