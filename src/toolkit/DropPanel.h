#pragma once

#include <QWidget>

#include <vector>

class DropItem;
class QScrollBar;

/// The panel of a drop-down list, `picBox`: the sliding list `picItemList` with the items
/// `lblItem1`, `lblItem2`, ... one below the other, and the plain scroll bar `vsResults`, which is
/// shown where the list is longer than the panel. `lblItem0` stays hidden above the first item:
/// what is loaded takes its size from it. Heights are in twips.
class DropPanel : public QWidget {
    Q_OBJECT

public:
    explicit DropPanel(QWidget* parent);

    void AddItem(const QString& caption, qint32 tag);
    /// The item at that place, from 1; fails with 340 where none is loaded.
    const DropItem& Item(int index) const;
    int PanelHeight() const { return panelHeight_; }
    void SetPanelHeight(int height); ///< reduced where the items end earlier
    void Bring(int index);           ///< scrolls until that item can be seen
    void Hilite(int index);          ///< lights that item alone; 0 none

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
