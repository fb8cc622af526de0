#pragma once

#include "toolkit/PaintedPanel.h"

#include <QPoint>
#include <QRect>

#include <memory>

class DragOutline;

/// A title that drags its window. A drag begins with the first change of x. A window manager or a
/// Wayland compositor moves the window. Without one, an outline follows the pointer, and the window
/// moves once, at the end, to the last outline. There are no bounds: it can be dragged off the
/// screen.
class TitleControl : public PaintedPanel {
    Q_OBJECT

public:
    explicit TitleControl(QWidget* parent = nullptr);
    ~TitleControl() override;
    bool Dragging() const { return dragging_; } ///< an outline follows the pointer
    QAccessible::Role AccessibleRole() const override { return QAccessible::Heading; }
    QRect Outline() const { return outline_; } ///< the last one drawn; null before the first

Q_SIGNALS:
    void Moved();

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void hideEvent(QHideEvent*) override; ///< cancels a drag
    /// Paints the ground, and the caption at `place` of the surface `picM`.
    void PaintTitle(QPoint picM, QPointF place);

private:
    void BeginDrag();
    void DrawOutline(QPoint cursor);
    bool EndDrag(); ///< hides the outline; true if a drag was going on

    QPoint pressed_;
    QRect outline_;
    std::unique_ptr<DragOutline> band_;
    bool dragging_ = false;
    bool platformMoves_ = false;
};
