#include "toolkit/SmoothedPrint.h"

#include "runtime/AppState.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr qint32 firstSmoothingFamily = 2;

bool Smooths() {
    return App().AppInfo.OSVERSION >= firstSmoothingFamily;
}

} // namespace

QFont SmoothedFont(QFont font) {
    font.setStyleStrategy(Smooths() ? QFont::PreferAntialias : QFont::NoAntialias);
    return font;
}

void SmoothedPrint(QPainter& painter, QPointF place, const QString& text, QFont font) {
    const QFont previous = painter.font();
    painter.setFont(SmoothedFont(std::move(font)));
    const double ascent = QFontMetricsF(painter.font(), painter.device()).ascent();
    painter.drawText(place + QPointF(0, ascent), text);
    painter.setFont(previous);
}
