#pragma once

#include <QWidget>

/// The hollow frame that shows where a dragged window will stand: a two-pixel line on the screen,
/// above all windows, that takes no input.
class DragOutline : public QWidget {
    Q_OBJECT

public:
    DragOutline();
    void Draw(const QRect& outline); ///< at that place of the screen

protected:
    void paintEvent(QPaintEvent*) override;
};
