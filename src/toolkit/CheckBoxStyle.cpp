#include "toolkit/CheckBoxStyle.h"

#include "drawing/Pictures.h"

#include <QStyleOption>

namespace {

struct PictureRow {
    QStyle::State needed, excluded;
    const char* name;
};

/// The first row that fits counts.
constexpr PictureRow Rows[] = {
    {QStyle::State_On, QStyle::State_Enabled, "check-on-disabled"},
    {QStyle::State_None, QStyle::State_Enabled, "check-off-disabled"},
    {QStyle::State_On | QStyle::State_HasFocus, QStyle::State_None, "check-on-focus"},
    {QStyle::State_On, QStyle::State_None, "check-on"},
    {QStyle::State_HasFocus, QStyle::State_None, "check-off-focus"},
    {QStyle::State_MouseOver, QStyle::State_None, "check-off-lit"},
    {QStyle::State_None, QStyle::State_None, "check-off"},
};

QString PictureOf(QStyle::State state) {
    const auto* row = std::begin(Rows);
    while ((state & row->needed) != row->needed || (state & row->excluded))
        ++row;
    return QLatin1String(row->name);
}

} // namespace

CheckBoxStyle::CheckBoxStyle()
    : QProxyStyle(QStringLiteral("Fusion")) {}

void CheckBoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox)
        Pictures::Paint(*painter, option->rect, PictureOf(option->state));
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}
