#pragma once

#include "toolkit/TitleControl.h"

/// The title of a main window. Its surface begins to the right of the logo, which the frame draws.
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
