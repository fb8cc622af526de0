#include "analysis/ui/ChartLabel.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

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
    ShowAnew();
}

void ChartLabel::ShowAnew() {
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
        textWidth_ = fontMetrics().horizontalAdvance(Shown());
    return textWidth_;
}

QSize ChartLabel::sizeHint() const {
    return {TextWidth(), fontMetrics().height()};
}

void ChartLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(foreColor_);
    if (TextWidth() > width())
        painter.setFont(FittingFont(font(), Shown(), width()));
    painter.drawText(contentsRect(), int(alignment_), Shown());
}
