#include "toolkit/SmoothedPrint.h"

#include "runtime/AppState.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

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
// pixel would be cut. A text with more characters than pixels never fits, and is not laid out
// whole.
QString FittingText(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(SmoothedFont(font));
    const qsizetype most = qMax(qCeil(width), 1);
    const bool fits = text.size() <= most && metrics.horizontalAdvance(text) <= width;
    return fits ? text : metrics.elidedText(text.left(most + 1), Qt::ElideRight, width);
}
