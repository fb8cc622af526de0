#pragma once

#include "toolkit/DrawnControl.h"

/// The heading of a meal in a day's list. A click on it asks to add food to that meal. Its text is
/// brown; under the pointer the text is white and the strip brown.
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
    QSize sizeHint() const final;
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
