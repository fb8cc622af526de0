#pragma once

#include "analysis/ui/ChartPiece.h"

/// A bar of a chart. Its row can be highlighted.
class ChartBar : public ChartPiece {
    Q_OBJECT
    Q_PROPERTY(double Width READ Width WRITE SetWidth)
    Q_PROPERTY(bool Hilited READ Hilited WRITE SetHilited)

public:
    explicit ChartBar(QWidget* parent = nullptr);

    double Width() const { return width_; } ///< in twips
    void SetWidth(double twips);
    bool Hilited() const { return hilited_; }
    void SetHilited(bool hilited);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    double width_ = 0;
    bool hilited_ = false;
};
