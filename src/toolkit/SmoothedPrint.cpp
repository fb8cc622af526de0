#include "toolkit/SmoothedPrint.h"

#include "runtime/AppState.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace {

constexpr qint32 firstSmoothingFamily = 2;
constexpr double leastPoints = 5; ///< the smallest that can still be read
constexpr double pointStep = 0.25;

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

QFont FittingFont(QFont font, const QString& text, double width) {
    while (font.pointSizeF() > leastPoints &&
           QFontMetricsF(SmoothedFont(font)).horizontalAdvance(text) > width)
        font.setPointSizeF(font.pointSizeF() - pointStep);
    return font;
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
