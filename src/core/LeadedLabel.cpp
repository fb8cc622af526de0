#include "core/LeadedLabel.h"

#include "drawing/Style.h"

#include <QPainter>
#include <QResizeEvent>
#include <QTextLayout>

namespace {

constexpr int LineHeight = 19; // pixels

} // namespace

LeadedLabel::LeadedLabel(const QString& name, QWidget* parent)
    : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setFont(TheStyle().text);
    setMouseTracking(true);
}

int LeadedLabel::LayOut(QTextLayout& text, int width) const {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text.setTextOption(option);
    int top = 0;
    text.beginLayout();
    for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, top + (LineHeight - line.height()) / 2));
        top += LineHeight;
    }
    text.endLayout();
    return top;
}

int LeadedLabel::heightForWidth(int width) const {
    if (width != measured_.width || text() != measured_.text || font() != measured_.font) {
        QTextLayout layout(text(), font());
        measured_ = {text(), font(), width, LayOut(layout, qMax(1, width))};
    }
    return measured_.height;
}

void LeadedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        updateGeometry();
}

void LeadedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(TheStyle().ink);
    QTextLayout layout(text(), font());
    LayOut(layout, width());
    layout.draw(&painter, QPointF());
}
