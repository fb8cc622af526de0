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

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool centerAlignText_ = true;
};
