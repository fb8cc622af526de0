#include "analysis/ui/ChartLabel.h"

#include "toolkit/Style.h"

#include <QPainter>

ChartLabel::ChartLabel(QWidget* parent)
    : ChartPiece(parent)
    , foreColor_(TheStyle().barRowText) {
    setFont(TheStyle().small);
}

void ChartLabel::SetCaption(const QString& caption) {
    if (caption_ == caption)
        return;
    caption_ = caption;
    textWidth_ = -1;
    update();
}

void ChartLabel::SetForeColor(const QColor& color) {
    if (foreColor_ == color)
        return;
    foreColor_ = color;
    update();
}

int ChartLabel::TextWidth() const {
    if (textWidth_ < 0)
        textWidth_ = fontMetrics().horizontalAdvance(caption_);
    return textWidth_;
}

QSize ChartLabel::sizeHint() const {
    return {TextWidth(), fontMetrics().height()};
}

void ChartLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(foreColor_);
    const bool fits = TextWidth() <= width();
    painter.drawText(contentsRect(), int(alignment_),
                     fits ? caption_ : fontMetrics().elidedText(caption_, Qt::ElideRight, width()));
}
