#pragma once

#include "toolkit/DrawnControl.h"

/// A button that shows one of three pictures, set by name (see Pictures). The picture is its state.
/// It takes the size of `img_NORM`: 24 by 24 pixels unless SetPictureSize was called.
class ucButtonA : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString img_NORM READ img_NORM WRITE Set_img_NORM)
    Q_PROPERTY(QString img_ROLL READ img_ROLL WRITE Set_img_ROLL)
    Q_PROPERTY(QString img_DOWN READ img_DOWN WRITE Set_img_DOWN)
    Q_PROPERTY(QString acToolTip READ toolTip WRITE Set_acToolTip)
    Q_PROPERTY(QString Shown READ Shown)
    Q_PROPERTY(bool Chosen READ Chosen WRITE SetChosen)

public:
    explicit ucButtonA(QWidget* parent = nullptr);

    /// Sets one picture in three tones (at rest, under the pointer, pressed), the tip and the
    /// accessible name.
    void SetPictures(const QString& name, const QString& toolTip);
    QString img_NORM() const { return normal_; }
    void Set_img_NORM(const QString& name); ///< also shows it
    QString img_ROLL() const { return roll_; }
    void Set_img_ROLL(const QString& name);
    QString img_DOWN() const { return down_; }
    void Set_img_DOWN(const QString& name);
    void Set_acToolTip(const QString& tip);
    QString Shown() const; ///< the picture that it shows now: "img_NORM", "img_ROLL" or "img_DOWN"
    bool Chosen() const { return chosen_; } ///< its view is the one that is shown; painted lit
    void SetChosen(bool chosen);            ///< makes it one of a set, like a radio button
    bool IsOneOfASet() const { return oneOfASet_; }
    void SetPictureSize(QSize size);
    void SetBordered(bool bordered);              ///< with a button's edge; off by default
    void SetCaptionBelow(const QString& caption); ///< navigation column: caption under the picture
    void SetTints(const QColor& rest, const QColor& roll, const QColor& down);
    void Reset(); ///< img_NORM, if it shows anything else
    QSize sizeHint() const final;
    void Activate() override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }
    QAccessibleInterface* MakeAccessible() override;

    struct Layout {
        QRect imgButton, caption;
    };
    Layout layoutRects() const;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void leaveEvent(QEvent*) override;
    void changeEvent(QEvent*) override;

private:
    enum class Image { Normal, Roll, Down };
    void Show(Image image);
    void Fit();
    QString PictureShown() const;
    QColor InkShown() const;
    void PaintGround(QPainter& painter) const;
    void PaintNavigationGround(QPainter& painter) const;

    QString normal_, roll_, down_, captionBelow_;
    QColor tints_[3];
    QSize pictureSize_{24, 24};
    Image shown_ = Image::Normal;
    bool chosen_ = false;
    bool oneOfASet_ = false;
    bool bordered_ = false;
};
