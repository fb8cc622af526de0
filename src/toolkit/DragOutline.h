#pragma once

#include <QWidget>

/// The hollow frame that shows where a dragged window will be: a two-pixel line above all windows,
/// which takes no input.
class DragOutline : public QWidget {
    Q_OBJECT

public:
    DragOutline();
    void Draw(const QRect& outline); ///< at that place of the screen

protected:
    void paintEvent(QPaintEvent*) override;
};
