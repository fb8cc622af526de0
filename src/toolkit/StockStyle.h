#pragma once

#include <QProxyStyle>

/// The stock style, with the marks of check boxes and menus and the pictures of message boxes
/// painted by Pictures in the colours of the style.
class StockStyle : public QProxyStyle {
    Q_OBJECT

public:
    StockStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap wanted, const QStyleOption* option,
                       const QWidget* widget) const override;
};
