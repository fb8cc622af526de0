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

void SmoothedPrint(QPainter& painter, QPointF place, const QString& text, const QFont& font) {
    const QFont previous = painter.font();
    painter.setFont(SmoothedFont(font));
    const double ascent = QFontMetricsF(painter.font(), painter.device()).ascent();
    painter.drawText(place + QPointF(0, ascent), text);
    painter.setFont(previous);
}

// Measured first, because the ellipsis is worked out from unhinted widths: text that fits to the
// pixel would be cut.
QString FittingText(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(SmoothedFont(font));
    const bool fits = metrics.horizontalAdvance(text) <= width;
    return fits ? text : metrics.elidedText(text, Qt::ElideRight, width);
}
