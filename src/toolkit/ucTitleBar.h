#pragma once

#include "toolkit/TitleControl.h"

/// The title of a main window. Its surface begins right of the logo, which the frame lays over it.
class ucTitleBar : public TitleControl {
    Q_OBJECT

public:
    explicit ucTitleBar(QWidget* parent = nullptr);
    void SetSurfaceLeft(int pixels); ///< where the caption begins
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    int surfaceLeft_;
};
