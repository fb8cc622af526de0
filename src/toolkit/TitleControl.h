#pragma once

#include "toolkit/PaintedPanel.h"

#include <QPoint>
#include <QRect>

#include <memory>

class DragOutline;

/// A title by which a window without the platform's title bar is dragged: an outline follows the
/// pointer, the window itself moves once, at the end, to the outline's last place. A drag begins
/// with the first change of x. No bounds are set.
class TitleControl : public PaintedPanel {
    Q_OBJECT

public:
    explicit TitleControl(QWidget* parent = nullptr);
    ~TitleControl() override;
    bool Dragging() const { return dragging_; }
    QAccessible::Role AccessibleRole() const override { return QAccessible::TitleBar; }
    QRect Outline() const { return outline_; } ///< the last one drawn, null before

Q_SIGNALS:
    void Moved();

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void hideEvent(QHideEvent*) override; ///< a drag under way is given up
    /// The ground, and the caption at that place of the surface `picM`.
    void PaintTitle(QPoint picM, QPointF place);

private:
    void DrawOutline(QPoint cursor);
    bool EndDrag(); ///< takes the outline off the screen; true where a drag was under way

    QPoint pressed_;
    QRect outline_;
    std::unique_ptr<DragOutline> band_;
    bool dragging_ = false;
};
