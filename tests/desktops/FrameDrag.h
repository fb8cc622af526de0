#pragma once

#include <QPoint>
#include <QRect>

class TestDisplay;

/// Drags the frame by its title. A manager takes the pointer a while after the drag has begun, and
/// places the window by where the pointer was then. So the pointer is led by where the frame is,
/// and the button is held until the frame rests at its end.
class FrameDrag {
public:
    FrameDrag(const TestDisplay& display, QPoint start, QPoint end);

    /// Where the pointer holds a frame at that place.
    static QPoint Hand(QPoint frame);
    /// Call it often. True when the frame rests at the end of the drag.
    bool Follow(const QRect& frame);
    void End() const; ///< releases the button

private:
    void Begin() const;
    void BeginAgain() const;
    void Lead(QPoint frame);

    const TestDisplay& display_;
    QPoint start_, end_;
    QPoint pointer_;
    QPoint last_;
    int looks_ = 0;    ///< since the frame has moved
    int refusals_ = 0; ///< how often it did not follow
};
