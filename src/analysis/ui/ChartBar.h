#pragma once

#include "analysis/ui/ChartPiece.h"

/// A bar: a picture of 7 by 8 pixels, stretched to the bar's width. It is blue, and brown
/// while its row is highlighted.
class ChartBar : public ChartPiece {
    Q_OBJECT
    Q_PROPERTY(double Width READ Width WRITE SetWidth)
    Q_PROPERTY(bool Hilited READ Hilited WRITE SetHilited)

public:
    static constexpr int Height = 8; ///< pixels

    explicit ChartBar(QWidget* parent = nullptr);

    double Width() const { return width_; } ///< in twips
    void SetWidth(double twips);
    bool Hilited() const { return hilited_; }
    void SetHilited(bool hilited);
    static bool IsNarrow(double twips) { return twips <= 15; } ///< too narrow to be shown
    static void Paint(QPainter& painter, const QRect& place, bool hilited);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    double width_ = 0;
    bool hilited_ = false;
};
