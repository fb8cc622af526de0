#pragma once

#include <QProxyStyle>

/// The stock style, with check boxes painted by Pictures in the colours of the style.
class CheckBoxStyle : public QProxyStyle {
    Q_OBJECT

public:
    CheckBoxStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
