#pragma once

#include "toolkit/DrawnControl.h"

class DropPanel;

/// A combo list: the strip `picSelItem` with the selected item's text and an arrow, and a panel
/// that opens below it. The control itself grows downward over its neighbours to show the panel and
/// shrinks back, so its parent must reach as far down as the panel. Items count from 1.
///
/// Click is raised when the user has picked an item. The list closes when the focus goes or the
/// mouse is pressed elsewhere. Keys do nothing in it; assistive tools can open it and pick.
class ucDropDown : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE SetText)
    Q_PROPERTY(int aHEIGHT READ aHEIGHT WRITE Set_aHEIGHT)
    Q_PROPERTY(int SelectedID READ SelectedID)
    Q_PROPERTY(bool IsOpen READ IsOpen)
    Q_PROPERTY(QString PictureOn READ PictureOn)

public:
    explicit ucDropDown(QWidget* parent = nullptr);

    QString Text() const; ///< the text on the strip without its leading blanks
    void SetText(const QString& text);
    int aHEIGHT() const;          ///< of the panel, in twips
    void Set_aHEIGHT(int height); ///< reduced where the items end earlier
    int SelectedID() const { return selectedID_; }
    bool IsOpen() const;
    QString PictureOn() const; ///< what `imgArrow` shows: "img_N", "img_R" or "img_D"

    void AddItem(const QString& text, qint32 tag);
    /// Selects without opening and without an event. Fails with 340 where no item of that index is
    /// loaded; the selection then stays.
    void SetIndex(qint16 index);
    void Reset();    ///< closes the list and puts the arrow at rest
    void ResetPic(); ///< puts the arrow at rest

    struct Layout {
        QRect picSelItem, lblMyName, picArrow, imgArrow, picBox;
    };
    Layout layoutRects() const;
    QSize sizeHint() const final;
    void Activate() override; ///< opens or closes
    QAccessible::Role AccessibleRole() const override { return QAccessible::ComboBox; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool eventFilter(QObject*, QEvent*) override;

private:
    enum class Arrow { Normal, Roll, Down };
    void SetOpen(bool open);
    void FitHeight(bool open);
    void ShowArrow(Arrow picture);
    void TrackArrow(bool leftHeld, QPoint place);
    void Take(int index);
    void PaintStrip(QPainter& painter, const Layout& at) const;
    void PaintArrow(QPainter& painter, const Layout& at) const;

    DropPanel* picBox_;
    QString myName_ = QStringLiteral("Label1");
    int selectedID_ = 0;
    int index_ = 0; ///< of the selected item, 0 before one is
    Arrow arrow_ = Arrow::Normal;
    bool arrowPressed_ = false;
};
