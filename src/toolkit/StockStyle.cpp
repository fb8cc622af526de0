#include "toolkit/StockStyle.h"

#include "drawing/Pictures.h"
#include "drawing/Style.h"

#include <QIcon>
#include <QStyleOption>

namespace {

constexpr int LargestIcon = 128; ///< pixels; smaller ones are made of it

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

/// The same ink as the text of the item.
QColor MenuInk(QStyle::State state) {
    const Style& style = TheStyle();
    if (!state.testFlag(QStyle::State_Enabled))
        return style.disabledInk;
    return state.testFlag(QStyle::State_Selected) ? style.chosenRowText : style.ink;
}

void PaintMenuArrow(QPainter& painter, const QStyleOption& option) {
    const int side = qMin(option.rect.width(), option.rect.height());
    QRect place(0, 0, side, side);
    place.moveCenter(option.rect.center());
    Pictures::Paint(painter, place, QStringLiteral("arrow-right"), MenuInk(option.state));
}

const char* PictureOf(QStyle::StandardPixmap wanted) {
    switch (wanted) {
    case QStyle::SP_MessageBoxInformation:
        return "info";
    case QStyle::SP_MessageBoxQuestion:
        return "question";
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
        return "warning";
    default:
        return nullptr;
    }
}

} // namespace

StockStyle::StockStyle()
    : QProxyStyle(QStringLiteral("Fusion")) {}

void StockStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox)
        Pictures::Paint(*painter, option->rect, PictureOf(option->state));
    else if (element == PE_IndicatorArrowRight && option->type == QStyleOption::SO_MenuItem)
        PaintMenuArrow(*painter, *option);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

QIcon StockStyle::standardIcon(StandardPixmap wanted, const QStyleOption* option,
                               const QWidget* widget) const {
    const char* picture = PictureOf(wanted);
    if (!picture)
        return QProxyStyle::standardIcon(wanted, option, widget);
    return {Pictures::Get(QLatin1String(picture), {LargestIcon, LargestIcon}, TheStyle().heading)};
}
