#pragma once

#include "toolkit/PaintedPanel.h"

/// A section header of three slices.
class ucHeader : public PaintedPanel {
    Q_OBJECT
    Q_PROPERTY(bool CenterAlignText READ CenterAlignText WRITE SetCenterAlignText)

public:
    explicit ucHeader(QWidget* parent = nullptr);
    bool CenterAlignText() const { return centerAlignText_; }
    void SetCenterAlignText(bool center);

    struct Layout {
        QRect picL, picM, picR;
    };
    Layout layoutRects() const;
    QSize sizeHint() const final;
    static void PaintBand(QPainter& painter, const QRect& place); ///< what a header looks like
    /// For a parent with a frame: paints the band behind its header and up to the frame. At a
    /// fractional scale a pixel of the parent shows between the two.
    static void PaintBehind(QPainter& painter, const QRect& header);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool centerAlignText_ = true;
};
