#pragma once

#include "toolkit/ClickRule.h"

#include <QLabel>
#include <QList>

/// One line of smoothed text. It is printed in the first of its fonts in which it fits. Where it
/// fits in none it is cut with an ellipsis, and the tip shows it whole.
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
