#pragma once

#include "toolkit/DrawnControl.h"

/// A picture for on or off, and a text. A click turns it on, never off: the screen turns the others
/// of its set off. Space turns it on; the arrow keys move through the set, which is the radios of
/// one parent whose names differ only in their number.
class ucRadio : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(bool Value READ Value WRITE SetValue)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    explicit ucRadio(QWidget* parent = nullptr);
    explicit ucRadio(const QString& caption, QWidget* parent = nullptr);

    bool Value() const { return value_; }
    void SetValue(bool value);
    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    QSize sizeHint() const final;
    void Activate() override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::RadioButton; }
    QAccessibleInterface* MakeAccessible() override;

    struct Layout {
        QRect imgButton, caption;
    };
    Layout layoutRects() const;

protected:
    /// Names of the pictures: on `imgN`, off `imgD`.
    ucRadio(const QString& imgN, const QString& imgD, QSize pictureSize, const QString& caption,
            QWidget* parent);
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;
    void changeEvent(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    QList<ucRadio*> Set() const;
    void GoTo(int step);

    QString imgN_, imgD_, caption_;
    QSize pictureSize_;
    bool value_ = false;
    bool lit_ = false;
};

/// The same control with other pictures: a switch instead of a dot.
class ucRadioB : public ucRadio {
    Q_OBJECT

public:
    explicit ucRadioB(const QString& caption = {}, QWidget* parent = nullptr);
};
