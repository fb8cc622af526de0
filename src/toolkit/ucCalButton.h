#pragma once

#include "toolkit/DrawnControl.h"

/// The button of a calendar's chosen day: one slice, a caption, no disabled look. `img_N` is the
/// picture at rest and `img_R` the one under the pointer, the reverse of ucButton. After a release
/// it looks pressed until the next mouse move.
class ucCalButton : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(int State READ State)

public:
    explicit ucCalButton(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    int State() const { return state_; }
    void Reset(); ///< state 1
    QSize sizeHint() const final;
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }
    QString PictureOn() const; ///< name of the picture that `picM` shows now

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    QRect picM() const; ///< the surface of the caption
    void Track(bool leftButton, QPointF place);
    void SetState(int state);

    QString caption_ = QStringLiteral("Custom");
    int state_ = 1;
};
