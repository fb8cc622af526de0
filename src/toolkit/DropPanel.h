#pragma once

#include "toolkit/DrawnControl.h"

#include <vector>

class DropItem;
class QScrollBar;

/// The panel `picBox` of a drop-down list. It holds the sliding list `picItemList` with the items
/// `lblItem1`, `lblItem2`, ... one below the other, and the scroll bar `vsResults`, shown if the
/// list is longer than the panel. `lblItem0` stays hidden above the first item; new items take its
/// size. Heights are in twips.
class DropPanel : public DrawnControl {
    Q_OBJECT

public:
    explicit DropPanel(QWidget* parent);

    void AddItem(const QString& caption, qint32 tag);
    /// The item at `index`, from 1. Fails with 340 if there is none.
    const DropItem& Item(int index) const;
    int Count() const { return int(items_.size()) - 1; }
    int Lit() const; ///< 0 if none is
    /// The first item from `from` on, then from the top, that begins with `word`; 0 if none does.
    int Find(const QString& word, int from) const;
    int PanelHeight() const { return panelHeight_; }
    void SetPanelHeight(int height); ///< reduced if the items end earlier
    void Bring(int index);           ///< scrolls the item into view
    void Hilite(int index);          ///< lights only that item; 0 lights none
    void Choose(int index);          ///< only that item; 0 chooses none
    QAccessible::Role AccessibleRole() const override { return QAccessible::List; }
    QAccessibleInterface* MakeAccessible() override;

Q_SIGNALS:
    void Picked(int index);
    void Hovered(int index);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void wheelEvent(QWheelEvent*) override;

private:
    DropItem* Load(const QString& caption, const QString& tag);
    int LastBottom() const;
    void SetUpBar();
    void PlaceItems();

    QWidget* view_; ///< inside the frame
    QWidget* picItemList_;
    QScrollBar* vsResults_;
    std::vector<DropItem*> items_;
    int listHeight_ = 0;
    int panelHeight_ = 300;
};
