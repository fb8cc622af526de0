#pragma once

#include "toolkit/PaintedPanel.h"

/// A caption strip of one slice.
class ucStrip : public PaintedPanel {
    Q_OBJECT

public:
    explicit ucStrip(QWidget* parent = nullptr);
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;
};
