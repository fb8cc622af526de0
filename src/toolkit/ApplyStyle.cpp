#include "toolkit/ApplyStyle.h"

#include "drawing/Style.h"
#include "toolkit/StockStyle.h"

#include <QApplication>
#include <QPalette>

namespace {

struct PaletteRow {
    QPalette::ColorRole role;
    QColor Style::*colour;
};

constexpr PaletteRow PaletteRows[] = {
    {QPalette::Window, &Style::canvas},
    {QPalette::WindowText, &Style::ink},
    {QPalette::Base, &Style::paper},
    {QPalette::AlternateBase, &Style::canvas},
    {QPalette::Text, &Style::ink},
    {QPalette::Button, &Style::canvas},
    {QPalette::ButtonText, &Style::ink},
    {QPalette::ToolTipBase, &Style::paper},
    {QPalette::ToolTipText, &Style::ink},
    {QPalette::PlaceholderText, &Style::quietInk},
    {QPalette::Highlight, &Style::chosenRow},
    {QPalette::HighlightedText, &Style::chosenRowText},
    {QPalette::Link, &Style::heading},
};

constexpr QPalette::ColorRole InkRoles[] = {QPalette::WindowText, QPalette::Text,
                                            QPalette::ButtonText};

QPalette PaletteOf(const Style& style) {
    QPalette palette;
    for (const PaletteRow& row : PaletteRows)
        palette.setColor(row.role, style.*row.colour);
    for (const QPalette::ColorRole role : InkRoles)
        palette.setColor(QPalette::Disabled, role, style.disabledInk);
    return palette;
}

/// `%name` stands for a value of the table below it.
const char* const Sheet = R"(
QLineEdit, QPlainTextEdit {
  background: %paper; color: %ink; border: 1px solid %fieldEdge; border-radius: %fieldRadius;
  selection-background-color: %chosenRow; selection-color: %chosenRowText; padding: 0 5px;
}
QLineEdit { min-height: %fieldInner; max-height: %fieldInner; }
QPlainTextEdit { padding: 3px 2px; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid %frame; padding: 0 4px; }
QPlainTextEdit:focus { padding: 2px 1px; }
QLineEdit:focus { min-height: %fieldFocused; max-height: %fieldFocused; }
QLineEdit:disabled, QPlainTextEdit:disabled {
  background: %canvas; color: %disabledInk; border-color: %rule;
}
ListBox { background: %paper; border: 2px solid %paper; outline: none; }
ListBox:focus { border-color: %frame; }
frmAlert QScrollArea { border: 1px solid %canvas; }
frmAlert QScrollArea:focus { border-color: %frame; }
QPrintPreviewWidget QGraphicsView { border: 1px solid %frame; padding: 1px; }
QPrintPreviewWidget QGraphicsView:focus { border-width: 2px; padding: 0; }
ListBox:disabled { background: %canvas; border-color: %canvas; }
QToolTip { background: %paper; color: %ink; border: 1px solid %frame; padding: 3px 5px; }
QCheckBox { color: %ink; spacing: 6px; background: transparent; }
QCheckBox:disabled { color: %disabledInk; }
QCheckBox:focus { color: %heading; }
QCheckBox::indicator { width: 16px; height: 16px; }
QPushButton {
  background: %buttonGround; color: %ink; border: 1px solid %buttonEdge;
  border-radius: %fieldRadius; padding: 4px 14px; min-width: 46px;
}
QPushButton:hover { background: %paper; border-color: %frame; }
QPushButton:focus { border: 2px solid %frame; padding: 3px 13px; }
QPrintDialog QPushButton { padding: 4px 6px; }
QPrintDialog QPushButton:focus { padding: 3px 5px; }
QLabel { background: transparent; }
QCalendarWidget QWidget { alternate-background-color: %canvas; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: %navigation; }
QCalendarWidget QToolButton {
  color: %windowInk; background: transparent; border: none; border-radius: %fieldRadius;
  padding: 3px 6px; margin: 2px; font-weight: 600;
}
QCalendarWidget QToolButton:hover, QCalendarWidget QToolButton:focus { background: %navigationLit; }
QCalendarWidget QToolButton::menu-indicator { image: none; }
QCalendarWidget QToolButton#qt_calendar_prevmonth { qproperty-icon: url(:/assets/arrow-left-light.svg); }
QCalendarWidget QToolButton#qt_calendar_nextmonth { qproperty-icon: url(:/assets/arrow-right-light.svg); }
QCalendarWidget QSpinBox { color: %ink; background: %paper; selection-background-color: %chosenRow; }
QCalendarWidget QAbstractItemView { background: %paper; color: %ink; outline: none; border: none; }
QScrollBar:vertical { background: %scrollSlot; width: %scrollWidth; margin: 0; border: none; }
QScrollBar::handle:vertical {
  background: %buttonGround; border: 1px solid %buttonEdge; border-radius: %fieldRadius;
  min-height: 24px; margin: 0 1px 0 2px;
}
QScrollBar::handle:vertical:hover { border-color: %frame; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QMenu { background: %paper; color: %ink; border: 1px solid %frame; padding: 3px; }
QMenu::item { padding: 4px 20px 4px 12px; }
QMenu::item:selected { background: %chosenRow; color: %chosenRowText; }
QMenu::item:disabled { background: %paper; color: %disabledInk; }
QMenu::separator { background: %rule; height: 1px; margin: 3px 6px; }
)";

struct SheetValue {
    QLatin1String name;
    QString text;
};

QString Pixels(int pixels) {
    return QString::number(pixels) + "px";
}

/// Longer names come first, because a shorter one may be their beginning.
QList<SheetValue> SheetValues(const Style& style) {
    return {
        {QLatin1String("%chosenRowText"), style.chosenRowText.name()},
        {QLatin1String("%chosenRow"), style.chosenRow.name()},
        {QLatin1String("%navigationLit"), style.navigationLit.name()},
        {QLatin1String("%navigation"), style.navigation.name()},
        {QLatin1String("%disabledInk"), style.disabledInk.name()},
        {QLatin1String("%windowInk"), style.windowInk.name()},
        {QLatin1String("%fieldEdge"), style.fieldEdge.name()},
        {QLatin1String("%fieldRadius"), Pixels(style.fieldRadius)},
        {QLatin1String("%fieldInner"), Pixels(style.fieldHeight - 2)},
        {QLatin1String("%fieldFocused"), Pixels(style.fieldHeight - 4)},
        {QLatin1String("%scrollSlot"), style.scrollSlot.name()},
        {QLatin1String("%scrollWidth"), Pixels(style.scrollWidth)},
        {QLatin1String("%buttonGround"), style.button[0].ground.to.name()},
        {QLatin1String("%buttonEdge"), style.button[0].edge.name()},
        {QLatin1String("%heading"), style.heading.name()},
        {QLatin1String("%canvas"), style.canvas.name()},
        {QLatin1String("%paper"), style.paper.name()},
        {QLatin1String("%frame"), style.frame.name()},
        {QLatin1String("%rule"), style.rule.name()},
        {QLatin1String("%ink"), style.ink.name()},
    };
}

QString SheetOf(const Style& style) {
    QString text = QString::fromLatin1(Sheet);
    for (const SheetValue& value : SheetValues(style))
        text.replace(value.name, value.text);
    return text;
}

} // namespace

void ApplyStyle(QApplication& application) {
    const Style& style = TheStyle();
    QApplication::setStyle(new StockStyle);
    QApplication::setPalette(PaletteOf(style));
    QApplication::setFont(style.text);
    application.setStyleSheet(SheetOf(style));
}
