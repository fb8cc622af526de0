#pragma once

#include "toolkit/DrawnControl.h"

class QTimer;

/// The vertical scroll bar. SetValue clamps the value, raises Change even if it is the same, and
/// then places the thumb. SetMax and SetMin only store. A held arrow or slot repeats after 0.4
/// seconds, then every 0.05 seconds. The thumb's place is Value / Max of the travel; Min does not
/// matter.
class ucScroll : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(int Value READ Value WRITE SetValue NOTIFY Change)
    Q_PROPERTY(int Max READ Max WRITE SetMax)
    Q_PROPERTY(int Min READ Min WRITE SetMin)
    Q_PROPERTY(int LargeChange READ LargeChange WRITE SetLargeChange)
    Q_PROPERTY(int SmallChange READ SmallChange WRITE SetSmallChange)
    Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)

public:
    explicit ucScroll(QWidget* parent = nullptr);

    int Value() const { return value_; }
    void SetValue(int value);
    int Max() const { return max_; }
    void SetMax(int max) { max_ = max; }
    int Min() const { return min_; }
    void SetMin(int min) { min_ = min; }
    int LargeChange() const { return largeChange_; }
    void SetLargeChange(int step) { largeChange_ = step; }
    int SmallChange() const { return smallChange_; }
    void SetSmallChange(int step) { smallChange_ = step; }
    int BackStyle() const { return backStyle_; }
    void SetBackStyle(int style) { backStyle_ = style; }

    void InitControls();
    int ThumbTop() const { return thumbTop_; } ///< in pixels, within the slot
    int Travel() const { return travel_; }

    struct Layout {
        QRect imgUp, imgDown, picSlot, picTB;
    };
    Layout layoutRects() const;
    QSize sizeHint() const final;
    QAccessible::Role AccessibleRole() const override { return QAccessible::ScrollBar; }
    QAccessibleInterface* MakeAccessible() override;
    void Wheel(QWheelEvent* event); ///< scrolls by small steps

Q_SIGNALS:
    void Change(int Value);
    void SlotPainted();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void hideEvent(QHideEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    enum class Part { None, Up, Down, Slot, Thumb };
    Part PartAt(QPoint place) const;
    void PressSlot(int y);
    void DragTo(int y);
    void PlaceThumb();
    void StartRepeat(int step, int limit);
    void Repeat();
    bool RepeatIsOver() const;
    void EndPress();
    void PaintArrow(QPainter& painter, const QRect& place, Part part) const;
    void PaintThumb(QPainter& painter, const QRect& place) const;

    static constexpr int NoDrag = -5000;
    int value_ = 1, max_ = 10, min_ = 1, largeChange_ = 20, smallChange_ = 5, backStyle_ = 1;
    int travel_ = 0, thumbTop_ = 0, dragOffset_ = NoDrag;
    int repeatStep_ = 0, repeatLimit_ = 0;
    int wheelRest_ = 0;
    Part pressed_ = Part::None;
    Part lit_ = Part::None;
    QTimer* repeat_ = nullptr;
};
