#pragma once

#include "toolkit/DrawnControl.h"
#include "toolkit/DropPanel.h"
#include "toolkit/TypedWord.h"

/// A drop-down list: the strip `picSelItem` with the selected text and an arrow, and a panel that
/// opens below it. To show the panel the control itself grows downward over its neighbours, so its
/// parent must be high enough. Items count from 1.
///
/// Click is raised when the user picks an item. The list closes when it loses the focus or the
/// mouse is pressed elsewhere. With the focus, arrow keys, Home, End and letters pick another item,
/// or light it while the list is open. Enter, Space, F4 and Alt with an arrow open the list. Enter
/// and Space then pick the lit item; Escape closes without picking.
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
    void Set_aHEIGHT(int height); ///< reduced if the items end earlier
    int SelectedID() const { return selectedID_; }
    bool IsOpen() const;
    QString PictureOn() const; ///< what `imgArrow` shows: "img_N", "img_R" or "img_D"

    void AddItem(const QString& text, qint32 tag);
    /// Selects an item; does not open the list and raises no event. Fails with 340 and keeps the
    /// selection if there is no such item.
    void SetIndex(qint16 index);
    void Reset();    ///< closes the list and resets the arrow
    void ResetPic(); ///< resets the arrow

    struct Layout {
        QRect picSelItem, lblMyName, picArrow, imgArrow, picBox;
    };
    Layout layoutRects() const;
    QSize sizeHint() const final;
    void Activate() override; ///< opens or closes
    QAccessible::Role AccessibleRole() const override { return QAccessible::ComboBox; }
    QAccessibleInterface* MakeAccessible() override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    bool eventFilter(QObject*, QEvent*) override;

private:
    enum class Arrow { Normal, Roll, Down };
    void SetOpen(bool open);
    void FitHeight(bool open);
    void ShowArrow(Arrow picture);
    void TrackArrow(bool leftHeld, QPoint place);
    void Take(int index);
    void Pick(int index);
    void OpenByKey();
    void Light(int index); ///< by key; 0 lights none
    bool OpensOrCloses(const QKeyEvent& key);
    int Asked(const QKeyEvent& key); ///< the item that the key leads to, 0 for none
    int AskedByWord(const QString& word) const;
    int Current() const { return IsOpen() && picBox_->Lit() > 0 ? picBox_->Lit() : index_; }
    void PaintStrip(QPainter& painter, const Layout& at) const;
    void PaintArrow(QPainter& painter, const Layout& at) const;

    DropPanel* picBox_;
    QString myName_ = QStringLiteral("Label1");
    int selectedID_ = 0;
    int index_ = 0; ///< of the selected item, 0 before one is
    TypedWord typed_;
    Arrow arrow_ = Arrow::Normal;
    bool arrowPressed_ = false;
};
