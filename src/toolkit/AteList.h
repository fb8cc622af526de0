#pragma once

#include "toolkit/DrawnControl.h"

class AtePane;

/// What the list of a day's foods and that of a recipe's ingredients share: a pane of lines that
/// fills the control, and the trash can on each line, which removes it at once without asking.
class AteList : public DrawnControl {
    Q_OBJECT

public:
    void InitControls(); ///< lays the pane out

Q_SIGNALS:
    void FoodRemoved();

protected:
    /// `edge` is the room around the pane, in pixels.
    explicit AteList(int edge, QWidget* parent);

    AtePane* Pane() const { return pane_; }
    /// Removes the row of that key from the store and draws the list anew. If it fails, the line
    /// stays until the next redraw.
    virtual void RemoveRow(qint32 key) = 0;

    void resizeEvent(QResizeEvent*) override;

private:
    void RemoveFood(qint32 key);

    AtePane* pane_;
    int edge_;
};
