#pragma once

#include "core/MenuItems.h"

#include <QList>
#include <QWidget>

class MenuLabel;

/// The panel below a title of the menu bar. It takes the mouse events that its items ignore, so
/// that the screen below does not get them.
class MenuPanel : public QWidget {
    Q_OBJECT

public:
    MenuPanel(MenuItems::Menu menu, QWidget* parent);

    const QList<MenuLabel*>& Items() const { return items_; }
    void Hilite(MenuLabel* item); ///< only this one; null: none
    MenuLabel* Hilited() const;
    /// The next (step 1) or previous (step -1) item that can be chosen, in a circle; from null: the
    /// first.
    MenuLabel* Next(MenuLabel* from, int step) const;

Q_SIGNALS:
    void Chosen(int index);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    void AddItem(int index);
    void PlaceItems();

    QList<MenuLabel*> items_; ///< the visible ones, from top to bottom
};
