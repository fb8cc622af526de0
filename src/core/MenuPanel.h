#pragma once

#include "core/MenuItems.h"

#include <QList>
#include <QWidget>

class MenuLabel;

/// The panel that drops down below a title of the menu bar. It takes the moves and presses that its
/// items leave alone, so that what lies below it does not get them.
class MenuPanel : public QWidget {
    Q_OBJECT

public:
    MenuPanel(MenuItems::Menu menu, QWidget* parent);

    const QList<MenuLabel*>& Items() const { return items_; }
    void Hilite(MenuLabel* item); ///< takes the highlight off all others; null: off all
    MenuLabel* Hilited() const;
    /// The next item that can be chosen, before or behind `from`, round and round; null: the first.
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

    QList<MenuLabel*> items_; ///< those that are shown, from top to bottom
};
