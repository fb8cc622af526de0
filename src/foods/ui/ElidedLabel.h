#pragma once

#include "toolkit/ClickRule.h"

#include <QLabel>
#include <QList>

/// One line of smoothed text in a place of its own: printed in the first of its fonts in which it
/// fits, cut with an ellipsis where it fits in none. A text that is cut stands in the tip.
class ElidedLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ text WRITE SetCaption)

public:
    ElidedLabel(QWidget* parent, const QString& name);

    void SetCaption(const QString& caption);
    void SetLook(const QList<QFont>& fonts, const QColor& ink);

    static void Print(QPainter& painter, const QRect& place, const QString& text, const QFont& font,
                      const QColor& ink);

Q_SIGNALS:
    void Click();

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    bool Fits(const QFont& font) const;
    QFont FittingFont() const;

    QList<QFont> fonts_;
    QColor ink_;
    ClickRule click_;
};
