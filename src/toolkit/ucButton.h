#pragma once

#include "drawing/Style.h"
#include "toolkit/DrawnControl.h"

/// A captioned button of any width: left cap, stretched one-pixel middle column, right cap. States:
/// 1 at rest, 2 pointer over it, 3 pressed, 4 disabled. SetEnabled(true) does not leave state 4,
/// only Reset does. Space and Return press it.
class ucButton : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(int State READ State)
    Q_PROPERTY(bool MainAction READ MainAction WRITE SetMainAction)

public:
    explicit ucButton(QWidget* parent = nullptr);
    explicit ucButton(const QString& caption, QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    bool Enabled() const { return isEnabled(); }
    void SetEnabled(bool enabled) { setEnabled(enabled); }
    int State() const { return state_; }
    bool MainAction() const { return mainAction_; }
    void SetMainAction(bool mainAction); ///< painted as the main action of its screen
    void Reset();                        ///< to state 1, or to 4 if disabled
    QSize sizeHint() const final;
    void Activate() override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }

    struct Layout {
        QRect picL, picM, picR;
    };
    Layout layoutRects() const;
    /// Name of the picture that the surface shows now: 0 `picL`, 1 `picM`, 2 `picR`.
    QString PictureOn(int surface) const;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void leaveEvent(QEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void changeEvent(QEvent*) override;

private:
    void SetState(int state);
    void HoldSpace(); ///< looks pressed until the key is released or the focus leaves
    const Style::ButtonFace& Face() const;
    void PaintCaption(QPainter& painter, const QRect& picM) const;

    QString caption_ = QStringLiteral("Custom");
    int state_ = 1;
    bool mainAction_ = false;
    bool spaceHeld_ = false;
};
