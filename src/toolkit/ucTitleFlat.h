#pragma once

#include "toolkit/PaintedPanel.h"

#include <QPoint>
#include <QRect>

class QRubberBand;

/// A title by which a window without the platform's title bar is dragged: an outline follows the
/// pointer, the window itself moves once, at the end, to the outline's last place.
class TitleControl : public PaintedPanel {
    Q_OBJECT

public:
    explicit TitleControl(QWidget* parent = nullptr);
    ~TitleControl() override;
    bool Dragging() const { return dragging_; }

Q_SIGNALS:
    void Moved();

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    QPoint pressed_;
    QRect outline_;
    QRubberBand* band_ = nullptr;
    bool dragging_ = false;
    bool outlineDrawn_ = false;
};

/// The title of a main window.
class ucTitleBar : public TitleControl {
    Q_OBJECT

public:
    explicit ucTitleBar(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
};

/// The title of a dialog: docks itself across the top of its parent whenever it is shown.
class ucTitleFlat : public TitleControl {
    Q_OBJECT

public:
    explicit ucTitleFlat(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;
    bool eventFilter(QObject*, QEvent*) override; ///< follows the parent's width
};
