#pragma once

#include "toolkit/DrawnControl.h"

/// A meal's heading in a day's list: a strip over the whole line that, clicked, adds food to that
/// meal. Its text is brown and turns white under the pointer, on a strip that turns brown.
class MealHeading : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption)
    Q_PROPERTY(QColor ForeColor READ ForeColor)

public:
    MealHeading(const QString& name, const QString& caption, QWidget* parent);

    QString Caption() const { return caption_; }
    QColor ForeColor() const;
    bool Lit() const { return lit_; }
    void SetLit(bool lit);
    QSize sizeHint() const override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    QString caption_;
    bool lit_ = false;
};
